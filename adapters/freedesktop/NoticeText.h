#pragma once

#include <string>
#include <string_view>

namespace tessivo::freedesktop {

/// `text` with what the bus would refuse, invalid UTF-8 and zero bytes, replaced by U+FFFD.
[[nodiscard]] std::string validText(std::string_view text);

/// `text` escaped, so that a desktop which interprets markup shows it unchanged.
[[nodiscard]] std::string escapedMarkup(std::string_view text);

} // namespace tessivo::freedesktop
