#pragma once

#include <string>
#include <vector>

namespace tessivo {

// What the pickers offer. An event stores the position of its choice, so rows keep their places for good. The
// two tables of repeats share words and differ in their positions: an event may repeat "Never", a reminder
// may not.

/// By `repEvent`.
[[nodiscard]] const std::vector<std::string>& dayRepeatTitles();
/// By `repReminder`.
[[nodiscard]] const std::vector<std::string>& repeatTitles();
/// By `alertReminder`.
[[nodiscard]] const std::vector<std::string>& alertTitles();

} // namespace tessivo
