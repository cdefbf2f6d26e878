#pragma once

#include "Ports/Time.h"

#include <optional>

namespace tessivo {

enum class CalendarUnit { Year, Month, WeekOfYear, Day, Hour, Minute, Second };

/// A moment in the fields of a calendar; a field that is empty says nothing. `month` and `day` count from 1.
struct DateComponents {
    std::optional<int> year;
    std::optional<int> month;
    std::optional<int> day;
    std::optional<int> hour;
    std::optional<int> minute;
    std::optional<int> second;

    friend bool operator==(const DateComponents&, const DateComponents&) = default;
};

/// The device's present calendar in its present time zone. Pure but for those two; safe from the main thread
/// and from the notification center's queue at once.
class Calendar {
public:
    virtual ~Calendar() = default;

    /// `instant` moved by `value` units, which may be negative. Days, weeks, months and years keep the time
    /// of day; a day that the target month lacks becomes the month's last; hours and less are lengths of
    /// time.
    [[nodiscard]] virtual Instant adding(CalendarUnit unit, int value, Instant instant) const = 0;

    /// All six fields of `instant`; the fraction of a second is dropped.
    [[nodiscard]] virtual DateComponents components(Instant instant) const = 0;

    /// The moment of `components`. Absent fields count as the first of their range (year: 1); a field beyond
    /// its range carries over (minute 60 is the next hour). A moment that a clock change skips is the first
    /// one after the gap; of a moment that comes twice, the first.
    [[nodiscard]] virtual Instant date(const DateComponents& components) const = 0;
};

} // namespace tessivo
