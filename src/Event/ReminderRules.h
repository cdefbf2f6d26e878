#pragma once

#include "Ports/Calendar.h"

#include <cstdint>

namespace tessivo {

class Console;

/// When an event that lies ahead reminds: `eventDate` less the lead time of that index, to the minute. An
/// index beyond the table prints "nul" to the console and means no lead time. The result may lie in the
/// past.
[[nodiscard]] DateComponents alertComponents(Instant eventDate, std::int16_t alertReminder,
                                             const Calendar& calendar, Console& console);

/// When an event that is past reminds next, to the second: at the first whole multiple of the interval of
/// that index after `eventDate` which comes after `now`. At a multiple itself it is the one after. An index
/// beyond the table prints "nul" to the console and stops the program.
[[nodiscard]] DateComponents repeatComponents(Instant eventDate, std::int16_t repReminder, Instant now,
                                              const Calendar& calendar, Console& console);

} // namespace tessivo
