#include "Event/ReminderRules.h"

#include "Ports/Console.h"

#include <array>
#include <cmath>

namespace tessivo {
namespace {

struct Step {
    CalendarUnit unit;
    int value;
};

constexpr std::array<Step, 10> leads{{{CalendarUnit::Minute, 0},
                                      {CalendarUnit::Minute, -5},
                                      {CalendarUnit::Minute, -10},
                                      {CalendarUnit::Minute, -15},
                                      {CalendarUnit::Minute, -30},
                                      {CalendarUnit::Hour, -1},
                                      {CalendarUnit::Hour, -2},
                                      {CalendarUnit::Day, -1},
                                      {CalendarUnit::Day, -2},
                                      {CalendarUnit::Day, -7}}};

/// A month is always 30 days here, and a year 365.
constexpr std::array<double, 5> intervals{86400, 604800, 1209600, 2592000, 31536000};

bool fits64Bits(double value) {
    constexpr double limit = 9223372036854775808.0;
    return value >= -limit && value < limit; // false for what is not a number
}

template <class Table>
const typename Table::value_type* entry(const Table& table, std::int16_t index, Console& console) {
    if (index >= 0 && static_cast<std::size_t>(index) < table.size())
        return &table[static_cast<std::size_t>(index)];
    console.print("nul");
    return nullptr;
}

} // namespace

DateComponents alertComponents(Instant eventDate, std::int16_t alertReminder, const Calendar& calendar,
                               Console& console) {
    const auto* lead = entry(leads, alertReminder, console);
    const auto moment = lead != nullptr ? calendar.adding(lead->unit, lead->value, eventDate) : eventDate;
    auto components = calendar.components(moment);
    components.second.reset();
    return components;
}

DateComponents repeatComponents(Instant eventDate, std::int16_t repReminder, Instant now,
                                const Calendar& calendar, Console& console) {
    const auto* known = entry(intervals, repReminder, console);
    const double interval = known != nullptr ? *known : 0;
    const double elapsed = (now - eventDate).count();
    const double periods = elapsed / interval;
    if (!fits64Bits(periods))
        console.stopProgram("The periods of a repeating reminder cannot be counted");
    const double seconds = interval * (std::trunc(periods) - periods + 1.0);
    return calendar.components(calendar.adding(CalendarUnit::Second, static_cast<int>(seconds), now));
}

} // namespace tessivo
