#include "freedesktop/NoticeText.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace tessivo::freedesktop {
namespace {

constexpr std::string_view replacement = "\xEF\xBF\xBD";

struct LeadByte {
    unsigned char mask;
    unsigned char mark;
    std::size_t length;
    char32_t least; ///< a longer form of a smaller number is not valid
};

constexpr std::array<LeadByte, 4> leadBytes{
    {{0x80, 0x00, 1, 0x01}, {0xE0, 0xC0, 2, 0x80}, {0xF0, 0xE0, 3, 0x800}, {0xF8, 0xF0, 4, 0x10000}}};

/// The length of the character that `text` begins with; 0 if it begins with no valid one.
std::size_t lengthOfCharacter(std::string_view text) {
    const auto first = static_cast<unsigned char>(text.front());
    const auto lead = std::ranges::find_if(
        leadBytes, [&](const LeadByte& byte) { return (first & byte.mask) == byte.mark; });
    if (lead == leadBytes.end() || text.size() < lead->length)
        return 0;
    char32_t character = first & static_cast<unsigned char>(~lead->mask);
    for (const char next : text.substr(1, lead->length - 1)) {
        const auto byte = static_cast<unsigned char>(next);
        if ((byte & 0xC0) != 0x80)
            return 0;
        character = (character << 6) | (byte & 0x3F);
    }
    const bool isSurrogate = character >= 0xD800 && character <= 0xDFFF;
    return character >= lead->least && character <= 0x10FFFF && !isSurrogate ? lead->length : 0;
}

} // namespace

std::string validText(std::string_view text) {
    std::string valid;
    while (!text.empty()) {
        const auto length = lengthOfCharacter(text);
        valid += length > 0 ? text.substr(0, length) : replacement;
        text.remove_prefix(std::max<std::size_t>(length, 1));
    }
    return valid;
}

std::string escapedMarkup(std::string_view text) {
    std::string escaped;
    for (const char character : text) {
        switch (character) {
        case '&':
            escaped += "&amp;";
            break;
        case '<':
            escaped += "&lt;";
            break;
        case '>':
            escaped += "&gt;";
            break;
        default:
            escaped += character;
        }
    }
    return escaped;
}

} // namespace tessivo::freedesktop
