#include "Interface/Label.h"

namespace tessivo::ui {

void Label::setStyledText(StyledText text) {
    text_ = std::move(text);
    notify(ViewChange::Content);
}

void Label::setText(std::string text) {
    setStyledText({{TextRun{std::move(text), font_, textColor_}}});
}

void Label::setFont(Font font) {
    font_ = font;
    for (TextRun& run : text_.runs)
        run.font = font;
    notify(ViewChange::Content);
}

void Label::setTextColor(ColorRef color) {
    textColor_ = std::move(color);
    for (TextRun& run : text_.runs)
        run.color = textColor_;
    notify(ViewChange::Content);
}

void Label::setAlignment(TextAlignment alignment) {
    alignment_ = alignment;
    notify(ViewChange::Content);
}

void Label::setNumberOfLines(int lines) {
    numberOfLines_ = lines;
    notify(ViewChange::Content);
}

} // namespace tessivo::ui
