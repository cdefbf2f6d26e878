#pragma once

#include "Interface/View.h"

namespace tessivo::ui {

enum class TextAlignment { Natural, Left, Center, Right };

/// Text that is read, not edited. In a language that runs from right to left, left and right change places.
class Label : public View {
public:
    using View::View;

    [[nodiscard]] const StyledText& styledText() const { return text_; }
    [[nodiscard]] std::string text() const { return text_.string(); }
    void setStyledText(StyledText text);
    /// Text in the label's own font and colour.
    void setText(std::string text);

    [[nodiscard]] const Font& font() const { return font_; }
    void setFont(Font font);
    [[nodiscard]] const ColorRef& textColor() const { return textColor_; }
    void setTextColor(ColorRef color);
    [[nodiscard]] TextAlignment alignment() const { return alignment_; }
    void setAlignment(TextAlignment alignment);
    /// Lines beyond the limit are cut with an ellipsis; 0 sets no limit.
    [[nodiscard]] int numberOfLines() const { return numberOfLines_; }
    void setNumberOfLines(int lines);

private:
    StyledText text_;
    Font font_;
    ColorRef textColor_ = ColorRef::black();
    TextAlignment alignment_ = TextAlignment::Natural;
    int numberOfLines_ = 1;
};

} // namespace tessivo::ui
