#pragma once

#include "Interface/View.h"

namespace tessivo::ui {

class TextInput;

/// Approves the edits of a text input and is notified of them. The input holds it weakly.
class TextInputDelegate {
public:
    virtual ~TextInputDelegate() = default;

    /// Called before an edit of the user. Return false to reject the whole edit.
    [[nodiscard]] virtual bool shouldChangeText(TextInput&, TextRange, const std::string& /*replacement*/) {
        return true;
    }
    virtual void didBeginEditing(TextInput&) {}
    virtual void didEndEditing(TextInput&) {}
    /// The return key was pressed in a single-line field.
    [[nodiscard]] virtual bool shouldReturn(TextInput&) { return true; }
};

/// What text fields and text views share: text that the user edits. Edits come in as ranges of 16-bit units.
/// Changes made by the program bypass the delegate and fire no event.
class TextInput : public View {
public:
    using View::View;

    [[nodiscard]] const std::string& text() const { return text_; }
    void setText(std::string text);
    [[nodiscard]] const Font& font() const { return font_; }
    void setFont(Font font);
    [[nodiscard]] const ColorRef& textColor() const { return textColor_; }
    void setTextColor(ColorRef color);
    [[nodiscard]] const Insets& textInsets() const { return textInsets_; }
    void setTextInsets(Insets insets);

    /// The user replaces `range`. Asks the delegate; where it agrees, changes the text and fires the
    /// editing-changed targets. Returns whether the edit took place.
    bool edit(TextRange range, const std::string& replacement);
    /// The user's edit as the whole new text: only the smallest range that differs is replaced.
    bool editTo(const std::string& text);

    void beginEditing();
    /// Also the program's way to put the keyboard away.
    void endEditing();
    [[nodiscard]] bool isEditing() const { return editing_; }

    void addEditingChangedTarget(std::function<void()> target) { targets_.add(std::move(target)); }

    std::weak_ptr<TextInputDelegate> delegate;

private:
    std::string text_;
    Font font_;
    ColorRef textColor_ = ColorRef::black();
    Insets textInsets_;
    bool editing_ = false;
    Signal<> targets_;
};

/// Editable text of one line, with a placeholder that shows while it is empty.
class TextField : public TextInput {
public:
    using TextInput::TextInput;

    [[nodiscard]] const std::string& placeholder() const { return placeholder_; }
    void setPlaceholder(std::string placeholder);

    /// The return key. Returns the delegate's answer.
    bool pressReturn();

private:
    std::string placeholder_;
};

/// Editable text of several lines; a line feed is a character like any other.
class TextView final : public TextInput {
public:
    using TextInput::TextInput;
};

} // namespace tessivo::ui
