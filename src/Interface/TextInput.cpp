#include "Interface/TextInput.h"

#include <algorithm>

namespace tessivo::ui {
namespace {

bool splitsCharacter(std::string_view text, std::size_t byte) {
    return byte < text.size() && (static_cast<unsigned char>(text[byte]) & 0xC0) == 0x80;
}

} // namespace

void TextInput::setText(std::string text) {
    text_ = std::move(text);
    notify(ViewChange::Content);
}

void TextInput::setFont(Font font) {
    font_ = font;
    notify(ViewChange::Content);
}

void TextInput::setTextColor(ColorRef color) {
    textColor_ = std::move(color);
    notify(ViewChange::Content);
}

void TextInput::setTextInsets(Insets insets) {
    textInsets_ = insets;
    notify(ViewChange::Content);
}

bool TextInput::edit(TextRange range, const std::string& replacement) {
    if (!takesActs())
        return false;
    if (const auto listener = delegate.lock();
        listener && !listener->shouldChangeText(*this, range, replacement))
        return false;
    setText(replacing(text_, range, replacement));
    targets_.emit();
    return true;
}

bool TextInput::editTo(const std::string& text) {
    std::size_t prefix = static_cast<std::size_t>(std::ranges::mismatch(text_, text).in1 - text_.begin());
    while (splitsCharacter(text_, prefix) || splitsCharacter(text, prefix))
        --prefix;
    const std::string_view oldRest = std::string_view(text_).substr(prefix);
    const std::string_view newRest = std::string_view(text).substr(prefix);
    const std::size_t shorter = std::min(oldRest.size(), newRest.size());
    std::size_t suffix = 0;
    while (suffix < shorter && oldRest[oldRest.size() - suffix - 1] == newRest[newRest.size() - suffix - 1])
        ++suffix;
    while (suffix > 0 && splitsCharacter(oldRest, oldRest.size() - suffix))
        --suffix;
    const TextRange range{utf16Length(std::string_view(text_).substr(0, prefix)),
                          utf16Length(oldRest.substr(0, oldRest.size() - suffix))};
    return edit(range, std::string(newRest.substr(0, newRest.size() - suffix)));
}

void TextInput::beginEditing() {
    if (editing_ || !takesActs())
        return;
    editing_ = true;
    if (const auto listener = delegate.lock())
        listener->didBeginEditing(*this);
    notify(ViewChange::Content);
}

void TextInput::endEditing() {
    if (!editing_)
        return;
    editing_ = false;
    if (const auto listener = delegate.lock())
        listener->didEndEditing(*this);
    notify(ViewChange::Content);
}

void TextField::setPlaceholder(std::string placeholder) {
    placeholder_ = std::move(placeholder);
    notify(ViewChange::Content);
}

bool TextField::pressReturn() {
    if (!takesActs())
        return false;
    const auto listener = delegate.lock();
    return !listener || listener->shouldReturn(*this);
}

} // namespace tessivo::ui
