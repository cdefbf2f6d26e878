#include "Interface/Text.h"

#include <algorithm>

namespace tessivo::ui {
namespace {

bool isContinuation(char byte) {
    return (static_cast<unsigned char>(byte) & 0xC0) == 0x80;
}

/// 16-bit units of the character that starts with `lead`: characters of four bytes need two.
std::size_t unitsOf(char lead) {
    return static_cast<unsigned char>(lead) >= 0xF0 ? 2 : 1;
}

/// The byte at which the character that holds 16-bit unit `unit` starts.
std::size_t byteOffset(std::string_view text, std::size_t unit) {
    std::size_t units = 0;
    std::size_t byte = 0;
    while (byte < text.size()) {
        const std::size_t width = unitsOf(text[byte]);
        if (units + width > unit)
            return byte;
        units += width;
        do
            ++byte;
        while (byte < text.size() && isContinuation(text[byte]));
    }
    return byte;
}

} // namespace

std::string StyledText::string() const {
    std::string text;
    for (const auto& run : runs)
        text += run.text;
    return text;
}

std::size_t utf16Length(std::string_view text) {
    std::size_t units = 0;
    for (const char byte : text) {
        if (!isContinuation(byte))
            units += unitsOf(byte);
    }
    return units;
}

std::string replacing(std::string_view text, TextRange range, std::string_view replacement) {
    const std::size_t begin = byteOffset(text, range.location);
    const std::size_t end = std::max(begin, byteOffset(text, range.location + range.length));
    std::string result(text.substr(0, begin));
    result += replacement;
    result += text.substr(end);
    return result;
}

} // namespace tessivo::ui
