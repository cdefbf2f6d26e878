#pragma once

#include "SwipeCells/SwipeActionButton.h"
#include "SwipeCells/SwipeActionsOrientation.h"

namespace tessivo::swipe {

/// The ground of one button, as wide as the row, so that its colour can run on beyond the button.
class SwipeActionButtonWrapperView final : public ui::View {
public:
    SwipeActionButtonWrapperView(const ui::Rect& frame, SwipeActionsOrientation orientation,
                                 double contentWidth)
        : contentRect{orientation == SwipeActionsOrientation::Left ? frame.width - contentWidth : 0, 0,
                      contentWidth, frame.height},
          orientation_(orientation) {
        setFrame(frame);
    }

    /// Where the button stands at first; later it keeps to that side.
    const ui::Rect contentRect;

    [[nodiscard]] const std::optional<ui::ColorRef>& actionBackgroundColor() const { return color_; }
    void setActionBackgroundColor(ui::ColorRef color) {
        setBackgroundColor(color);
        color_ = std::move(color);
    }

protected:
    void layoutSubviews() override {
        const double x =
            orientation_ == SwipeActionsOrientation::Left ? bounds().width - contentRect.width : 0;
        for (ui::View* button : subviews())
            button->setFrame({x, 0, contentRect.width, bounds().height});
    }

private:
    SwipeActionsOrientation orientation_;
    std::optional<ui::ColorRef> color_;
};

} // namespace tessivo::swipe
