#pragma once

#include <string>
#include <vector>

namespace tessivo {

class LocalizedTexts;

// What the pickers offer, in the user's language. An event stores the position of its choice, so rows keep
// their places for good. The two tables of repeats share words and differ in their positions: an event may
// repeat "Never", a reminder may not.

/// By `repEvent`.
[[nodiscard]] std::vector<std::string> dayRepeatTitles(const LocalizedTexts& texts);
/// By `repReminder`.
[[nodiscard]] std::vector<std::string> repeatTitles(const LocalizedTexts& texts);
/// By `alertReminder`.
[[nodiscard]] std::vector<std::string> alertTitles(const LocalizedTexts& texts);

} // namespace tessivo
