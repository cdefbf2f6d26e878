#include "UnsplashPicker/HexColor.h"

#include <array>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <cstdio>

namespace tessivo::unsplash {
namespace {

/// The text as AARRGGBB; empty if no colour has that length.
std::string eightDigits(std::string_view text) {
    switch (text.size()) {
    case 3: {
        std::string doubled = "FF";
        for (const char digit : text)
            doubled.append(2, digit);
        return doubled;
    }
    case 6:
        return "FF" + std::string(text);
    case 8:
        return std::string(text);
    default:
        return {};
    }
}

/// Characters, not bytes: a text of other letters must not be taken for one of another length.
std::size_t characterCount(std::string_view text) {
    std::size_t count = 0;
    for (const char byte : text)
        count += (static_cast<unsigned char>(byte) & 0xC0u) != 0x80u;
    return count;
}

} // namespace

std::optional<Color> colorFromHex(std::string_view text) {
    if (text.starts_with('#'))
        text.remove_prefix(1);
    const std::size_t count = characterCount(text);
    if (count != 3 && count != 6 && count != 8)
        return Color{.red = 0, .green = 0, .blue = 0, .alpha = 0};
    if (count != text.size())
        return std::nullopt;
    const std::string digits = eightDigits(text);
    std::uint32_t argb = 0;
    const char* const last = digits.data() + digits.size();
    const auto [end, fault] = std::from_chars(digits.data(), last, argb, 16);
    if (fault != std::errc() || end != last)
        return std::nullopt;
    const auto component = [argb](unsigned shift) {
        return static_cast<double>(argb >> shift & 0xFFu) / 255;
    };
    return Color{.red = component(16), .green = component(8), .blue = component(0), .alpha = component(24)};
}

std::string hexFromColor(const Color& color) {
    const auto byte = [](double component) { return static_cast<int>(std::lround(component * 255)); };
    std::array<char, 48> text{};
    const int length = std::snprintf(text.data(), text.size(), "%02X%02X%02X%02X", byte(color.alpha),
                                     byte(color.red), byte(color.green), byte(color.blue));
    return {text.data(), static_cast<std::size_t>(length)};
}

} // namespace tessivo::unsplash
