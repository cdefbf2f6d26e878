#pragma once

#include "Ports/Calendar.h"

namespace tessivo::fakes {

/// The Gregorian calendar of a device whose time zone is a fixed distance from Greenwich, and which a test
/// can carry to another zone at any time.
class OffsetCalendar final : public Calendar {
public:
    explicit OffsetCalendar(Seconds offset = Seconds(0)) : offset_(offset) {}

    void setOffset(Seconds offset) { offset_ = offset; }

    [[nodiscard]] Instant adding(CalendarUnit unit, int value, Instant instant) const override;
    [[nodiscard]] DateComponents components(Instant instant) const override;
    [[nodiscard]] Instant date(const DateComponents& components) const override;

private:
    Seconds offset_;
};

} // namespace tessivo::fakes
