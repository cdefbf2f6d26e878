#include "Event/CounterText.h"

#include "Event/EventDate.h"
#include "Ports/Console.h"
#include "Ports/LocalizedTexts.h"

#include <cmath>
#include <cstdint>

namespace tessivo {
namespace {

/// Divides in steps, so that a whole number of units stays whole.
double inUnits(double seconds, std::size_t unit) {
    constexpr std::array daysOfUnit{1.0, 7.0, 30.0, 365.0};
    const double hours = seconds / 60 / 60;
    return unit == 0 ? hours : hours / 24 / daysOfUnit[unit - 1];
}

} // namespace

std::optional<CounterText> counterText(Instant eventDate, Instant now, int unit, const UnitWords& words,
                                       const LocalizedTexts& texts, Console& console) {
    if (unit < 0 || unit >= static_cast<int>(words.size())) {
        console.print("nul");
        return std::nullopt;
    }
    const auto index = static_cast<std::size_t>(unit);
    const double count = std::trunc(inUnits((now - eventDate).count(), index));
    // Both bounds are left out: the least 64-bit number has no positive twin to show.
    constexpr double bound = 9'223'372'036'854'775'808.0;
    if (!(std::abs(count) < bound))
        console.stopProgram("A counter is too large to show.");

    const auto whole = static_cast<std::int64_t>(count);
    return CounterText{.number = isPast(eventDate, now)
                                     ? texts.localizedString("Since ") + std::to_string(whole)
                                     : texts.localizedString("In ") + std::to_string(-whole),
                       .unit = texts.localizedString(words[index])};
}

} // namespace tessivo
