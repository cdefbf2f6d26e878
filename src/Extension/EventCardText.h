#pragma once

#include "Interface/MainScreen.h"
#include "Interface/Text.h"

#include <string_view>

namespace tessivo {

/// The two lines of a card: `upper` in large type, `lower` under it, both white, larger on a large screen.
[[nodiscard]] ui::StyledText makeEventCardText(std::string_view lower, std::string_view upper,
                                               const ui::MainScreen& screen);

/// "Title (7/20)": `words`, such as "Title (", before the count, and exactly the digits of the count at their
/// own size.
[[nodiscard]] ui::StyledText makeCounterText(std::string_view words, std::size_t count, int limit);

} // namespace tessivo
