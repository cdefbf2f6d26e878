#pragma once

#include "Ports/Time.h"

#include <array>
#include <optional>
#include <string>
#include <string_view>

namespace tessivo {

class Console;
class LocalizedTexts;

/// The words under a count, by the index of the unit in which an event counts: keys of the text table.
using UnitWords = std::array<std::string_view, 5>;

/// On cards, and wherever the user chooses a unit.
inline constexpr UnitWords unitWords{"Hours", "Days", "Weeks", "Months", "Years"};

/// On the card of an edit screen, until a control of it is changed.
inline constexpr UnitWords editPreviewUnitWords{"Hour", "Days", "Week", "Months", "Year"};

/// The two lines of a counter.
struct CounterText {
    std::string number; ///< "Since 3" or "In 3"
    std::string unit;

    friend bool operator==(const CounterText&, const CounterText&) = default;
};

/// Whole units between `now` and `eventDate`, the part of a unit dropped, with the text of `texts` for the
/// word of the unit. A month counts 30 days and a year 365, whatever the calendar says. An unknown unit
/// prints "nul" and returns nothing; a count beyond 64 bits stops the program.
[[nodiscard]] std::optional<CounterText> counterText(Instant eventDate, Instant now, int unit,
                                                     const UnitWords& words, const LocalizedTexts& texts,
                                                     Console& console);

} // namespace tessivo
