#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace tessivo {

/// The text with each "%1" and "%2" replaced by these values.
[[nodiscard]] inline std::string filledText(std::string_view text, std::string_view first,
                                            std::string_view second = "") {
    std::string filled;
    for (std::size_t place = 0; place < text.size(); ++place) {
        const std::string_view mark = text.substr(place, 2);
        if (mark == "%1" || mark == "%2") {
            filled += mark == "%1" ? first : second;
            ++place;
        } else {
            filled += text[place];
        }
    }
    return filled;
}

} // namespace tessivo
