#include "icu/IcuCalendar.h"

#include "icu/DeviceLocale.h"
#include "icu/IcuRequire.h"

#include <cmath>

namespace tessivo {
namespace {

UCalendarDateFields fieldOf(CalendarUnit unit) {
    switch (unit) {
    case CalendarUnit::Year:
        return UCAL_YEAR;
    case CalendarUnit::Month:
        return UCAL_MONTH;
    case CalendarUnit::WeekOfYear:
        return UCAL_WEEK_OF_YEAR;
    case CalendarUnit::Day:
        return UCAL_DATE;
    case CalendarUnit::Hour:
        return UCAL_HOUR_OF_DAY;
    case CalendarUnit::Minute:
        return UCAL_MINUTE;
    case CalendarUnit::Second:
        return UCAL_SECOND;
    }
    return UCAL_SECOND;
}

} // namespace

IcuCalendar::IcuCalendar() : IcuCalendar(deviceLocale(LocalePurpose::Dates)) {}

IcuCalendar::IcuCalendar(const std::string& locale) {
    makeCalendar(locale);
}

IcuCalendar::IcuCalendar(const std::string& locale, const std::string& timeZone) : zone_(timeZone) {
    makeCalendar(locale);
}

void IcuCalendar::makeCalendar(const std::string& locale) {
    UErrorCode status = U_ZERO_ERROR;
    calendarZone_ = zone_.current();
    calendar_.reset(icu::Calendar::createInstance(*calendarZone_, icu::Locale(locale.c_str()), status));
    icu_adapter::require(status, "calendar");
    calendar_->setSkippedWallTimeOption(UCAL_WALLTIME_NEXT_VALID);
    calendar_->setRepeatedWallTimeOption(UCAL_WALLTIME_FIRST);
}

icu::Calendar& IcuCalendar::calendarNow() const {
    if (auto zone = zone_.current(); zone != calendarZone_) {
        calendar_->setTimeZone(*zone);
        calendarZone_ = std::move(zone);
    }
    return *calendar_;
}

Instant IcuCalendar::adding(CalendarUnit unit, int value, Instant instant) const {
    const double milliseconds = secondsSince1970(instant) * 1000;
    const double whole = std::floor(milliseconds);
    const std::scoped_lock lock(mutex_);
    icu::Calendar& calendar = calendarNow();
    UErrorCode status = U_ZERO_ERROR;
    calendar.setTime(whole, status);
    calendar.add(fieldOf(unit), value, status);
    const UDate moved = calendar.getTime(status);
    return U_SUCCESS(status) ? instantAt((moved + (milliseconds - whole)) / 1000) : instant;
}

DateComponents IcuCalendar::components(Instant instant) const {
    const std::scoped_lock lock(mutex_);
    icu::Calendar& calendar = calendarNow();
    UErrorCode status = U_ZERO_ERROR;
    calendar.setTime(std::floor(secondsSince1970(instant) * 1000), status);
    DateComponents result{.year = calendar.get(UCAL_YEAR, status),
                          .month = calendar.get(UCAL_MONTH, status) + 1,
                          .day = calendar.get(UCAL_DATE, status),
                          .hour = calendar.get(UCAL_HOUR_OF_DAY, status),
                          .minute = calendar.get(UCAL_MINUTE, status),
                          .second = calendar.get(UCAL_SECOND, status)};
    icu_adapter::require(status, "calendar fields");
    return result;
}

Instant IcuCalendar::date(const DateComponents& components) const {
    const std::scoped_lock lock(mutex_);
    icu::Calendar& calendar = calendarNow();
    UErrorCode status = U_ZERO_ERROR;
    calendar.clear();
    calendar.set(components.year.value_or(1), components.month.value_or(1) - 1, components.day.value_or(1),
                 components.hour.value_or(0), components.minute.value_or(0), components.second.value_or(0));
    const UDate moment = calendar.getTime(status);
    icu_adapter::require(status, "calendar moments");
    return instantAt(moment / 1000);
}

} // namespace tessivo
