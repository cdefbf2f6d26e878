#include "AddEventVC/LengthRule.h"

#include "Extension/EventCardText.h"
#include "Ports/TextCounting.h"

namespace tessivo {

std::optional<std::string> LengthRule::accept(const ui::TextInput& input, ui::TextRange range,
                                              const std::string& replacement) {
    std::string text = ui::replacing(input.text(), range, replacement);
    const std::size_t count = counting_.characters(text);
    if (count > static_cast<std::size_t>(limit_))
        return std::nullopt;
    show(count);
    return text;
}

void LengthRule::show(const std::string& text) {
    show(counting_.characters(text));
}

void LengthRule::show(std::size_t count) {
    counter_.setStyledText(makeCounterText(words_, count, limit_));
}

} // namespace tessivo
