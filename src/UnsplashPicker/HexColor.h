#pragma once

#include "Ports/NamedColors.h"

#include <optional>
#include <string>
#include <string_view>

namespace tessivo::unsplash {

/// The colour of a hexadecimal text: RGB, RRGGBB or AARRGGBB, with or without a leading "#". A text of
/// another length is fully transparent black; empty where a text of the right length holds other characters.
[[nodiscard]] std::optional<Color> colorFromHex(std::string_view text);

/// The colour as AARRGGBB.
[[nodiscard]] std::string hexFromColor(const Color& color);

} // namespace tessivo::unsplash
