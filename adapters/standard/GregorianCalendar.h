#pragma once

#include "Ports/Calendar.h"

namespace tessivo {

/// The Gregorian calendar in the device's time zone as it stands at each use, by the C library. It serves
/// where the language of the user has no say, and spares the reminder helper the memory of ICU. Years beyond
/// 32767 count as that one. Any thread.
class GregorianCalendar final : public Calendar {
public:
    Instant adding(CalendarUnit unit, int value, Instant instant) const override;
    DateComponents components(Instant instant) const override;
    Instant date(const DateComponents& components) const override;
};

} // namespace tessivo
