#include "fakes/OffsetCalendar.h"

#include <algorithm>
#include <chrono>

namespace tessivo::fakes {
namespace {

namespace chrono = std::chrono;

constexpr int secondsOfADay = 24 * 60 * 60;

chrono::year_month monthAfter(const DateComponents& from, int months) {
    return chrono::year(*from.year) / chrono::month(static_cast<unsigned>(*from.month)) +
           chrono::months(months);
}

} // namespace

DateComponents OffsetCalendar::components(Instant instant) const {
    const auto local = chrono::floor<chrono::seconds>(instant + offset_);
    const auto midnight = chrono::floor<chrono::days>(local);
    const chrono::year_month_day day(midnight);
    const chrono::hh_mm_ss time(local - midnight);
    return {static_cast<int>(day.year()),
            static_cast<int>(static_cast<unsigned>(day.month())),
            static_cast<int>(static_cast<unsigned>(day.day())),
            static_cast<int>(time.hours().count()),
            static_cast<int>(time.minutes().count()),
            static_cast<int>(time.seconds().count())};
}

Instant OffsetCalendar::date(const DateComponents& fields) const {
    const DateComponents first{fields.year.value_or(1), 1, 1, {}, {}, {}};
    const chrono::sys_days midnight(monthAfter(first, fields.month.value_or(1) - 1) / 1);
    return Instant(midnight) + chrono::days(fields.day.value_or(1) - 1) +
           chrono::hours(fields.hour.value_or(0)) + chrono::minutes(fields.minute.value_or(0)) +
           chrono::seconds(fields.second.value_or(0)) - offset_;
}

Instant OffsetCalendar::adding(CalendarUnit unit, int value, Instant instant) const {
    switch (unit) {
    case CalendarUnit::Year:
        return adding(CalendarUnit::Month, 12 * value, instant);
    case CalendarUnit::Month: {
        auto fields = components(instant);
        const auto whole = date(fields);
        const auto month = monthAfter(fields, value);
        const auto last = static_cast<int>(static_cast<unsigned>((month / chrono::last).day()));
        fields.year = static_cast<int>(month.year());
        fields.month = static_cast<int>(static_cast<unsigned>(month.month()));
        fields.day = std::min(*fields.day, last);
        return date(fields) + (instant - whole);
    }
    case CalendarUnit::WeekOfYear:
        return instant + Seconds(7.0 * secondsOfADay * value);
    case CalendarUnit::Day:
        return instant + Seconds(1.0 * secondsOfADay * value);
    case CalendarUnit::Hour:
        return instant + Seconds(3600.0 * value);
    case CalendarUnit::Minute:
        return instant + Seconds(60.0 * value);
    case CalendarUnit::Second:
        return instant + Seconds(value);
    }
    return instant;
}

} // namespace tessivo::fakes
