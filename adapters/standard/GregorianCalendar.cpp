#include "standard/GregorianCalendar.h"

#include <algorithm>
#include <cmath>
#include <ctime>

namespace tessivo {
namespace {

using namespace std::chrono;

constexpr int farthestYear = 32767; // a year of std::chrono can be no more

/// Seconds since 1970 on the clock on the wall, as if the zone were UTC.
using WallTime = sys_seconds;

seconds offsetAt(sys_seconds moment) {
    const std::time_t time = moment.time_since_epoch().count();
    std::tm fields{};
    return seconds(::localtime_r(&time, &fields) != nullptr ? fields.tm_gmtoff : 0);
}

/// The first moment after `before` and up to `after` with another offset than `before`.
sys_seconds changeBetween(sys_seconds before, sys_seconds after) {
    const seconds offset = offsetAt(before);
    while (after - before > seconds(1)) {
        const sys_seconds middle = before + (after - before) / 2;
        (offsetAt(middle) == offset ? before : after) = middle;
    }
    return after;
}

/// Of a time that comes twice, the first moment; of one that a clock change skips, the moment of the change.
sys_seconds momentOf(WallTime wall) {
    const sys_seconds dayBefore = wall - days(1);
    const sys_seconds dayAfter = wall + days(1);
    for (const sys_seconds neighbour : {dayBefore, dayAfter}) {
        const seconds offset = offsetAt(neighbour);
        if (offsetAt(wall - offset) == offset)
            return wall - offset;
    }
    return changeBetween(dayBefore, dayAfter);
}

WallTime wallTimeOf(sys_seconds moment) {
    return moment + offsetAt(moment);
}

Instant instantOf(sys_seconds moment) {
    return instantAt(static_cast<double>(moment.time_since_epoch().count()));
}

sys_seconds wholeSeconds(Instant instant) {
    return sys_seconds(seconds(static_cast<std::int64_t>(std::floor(secondsSince1970(instant)))));
}

/// The day as far into the month as the month goes.
sys_days clamped(year_month month, day wanted) {
    return std::min(sys_days(month / last), sys_days(month / 1) + (wanted - day(1)));
}

WallTime stepped(WallTime wall, CalendarUnit unit, int value) {
    const auto today = floor<days>(wall);
    const year_month_day date(today);
    const year_month month = date.year() / date.month();
    switch (unit) {
    case CalendarUnit::Year:
        return clamped(month + years(value), date.day()) + (wall - today);
    case CalendarUnit::Month:
        return clamped(month + months(value), date.day()) + (wall - today);
    case CalendarUnit::WeekOfYear:
        return wall + weeks(value);
    case CalendarUnit::Day:
    case CalendarUnit::Hour:
    case CalendarUnit::Minute:
    case CalendarUnit::Second:
        break;
    }
    return wall + days(value);
}

} // namespace

Instant GregorianCalendar::adding(CalendarUnit unit, int value, Instant instant) const {
    switch (unit) {
    case CalendarUnit::Hour:
        return instant + Seconds(hours(value));
    case CalendarUnit::Minute:
        return instant + Seconds(minutes(value));
    case CalendarUnit::Second:
        return instant + Seconds(value);
    case CalendarUnit::Year:
    case CalendarUnit::Month:
    case CalendarUnit::WeekOfYear:
    case CalendarUnit::Day:
        break;
    }
    if (value == 0)
        return instant;
    ::tzset(); // reads the zone anew if it has changed
    const sys_seconds moment = wholeSeconds(instant);
    const sys_seconds moved = momentOf(stepped(wallTimeOf(moment), unit, value));
    return instantOf(moved) + (instant - instantOf(moment));
}

DateComponents GregorianCalendar::components(Instant instant) const {
    ::tzset();
    const WallTime wall = wallTimeOf(wholeSeconds(instant));
    const auto today = floor<days>(wall);
    const year_month_day date(today);
    const hh_mm_ss time(wall - today);
    return {.year = static_cast<int>(date.year()),
            .month = static_cast<int>(static_cast<unsigned>(date.month())),
            .day = static_cast<int>(static_cast<unsigned>(date.day())),
            .hour = static_cast<int>(time.hours().count()),
            .minute = static_cast<int>(time.minutes().count()),
            .second = static_cast<int>(time.seconds().count())};
}

Instant GregorianCalendar::date(const DateComponents& components) const {
    ::tzset();
    const year named(std::clamp(components.year.value_or(1), -farthestYear, farthestYear));
    const year_month month = named / January + months(components.month.value_or(1) - 1);
    return instantOf(momentOf(sys_days(month / 1) + days(components.day.value_or(1) - 1) +
                              hours(components.hour.value_or(0)) + minutes(components.minute.value_or(0)) +
                              seconds(components.second.value_or(0))));
}

} // namespace tessivo
