#include "Ports/Uuid.h"

namespace tessivo {
namespace {

constexpr std::size_t textLength = 36;

bool isDashPosition(std::size_t position) {
    return position == 8 || position == 13 || position == 18 || position == 23;
}

int hexDigit(char character) {
    if (character >= '0' && character <= '9')
        return character - '0';
    if (character >= 'a' && character <= 'f')
        return character - 'a' + 10;
    if (character >= 'A' && character <= 'F')
        return character - 'A' + 10;
    return -1;
}

} // namespace

std::string Uuid::uuidString() const {
    constexpr std::string_view digits = "0123456789ABCDEF";
    std::string text;
    text.reserve(textLength);
    for (const std::uint8_t byte : bytes) {
        if (isDashPosition(text.size()))
            text += '-';
        text += digits[byte >> 4];
        text += digits[byte & 0x0F];
    }
    return text;
}

std::optional<Uuid> Uuid::fromString(std::string_view text) {
    if (text.size() != textLength)
        return std::nullopt;
    Uuid uuid;
    std::size_t digit = 0;
    for (std::size_t position = 0; position < textLength; ++position) {
        if (isDashPosition(position)) {
            if (text[position] != '-')
                return std::nullopt;
            continue;
        }
        const int value = hexDigit(text[position]);
        if (value < 0)
            return std::nullopt;
        auto& byte = uuid.bytes[digit / 2];
        byte = static_cast<std::uint8_t>(byte << 4 | value);
        ++digit;
    }
    return uuid;
}

} // namespace tessivo
