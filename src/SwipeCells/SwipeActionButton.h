#pragma once

#include "Interface/Button.h"
#include "Interface/ButtonLook.h"
#include "SwipeCells/SwipeAction.h"
#include "SwipeCells/SwipeOptions.h"

namespace tessivo {
class TextMeasuring;
}

namespace tessivo::swipe {

/// One button of a row: a picture above a centred text of any number of lines.
class SwipeActionButton final : public ui::Button, public ui::ButtonLook {
public:
    SwipeActionButton(const SwipeAction& action, const TextMeasuring& texts);

    double spacing = 8; ///< between picture and text
    bool shouldHighlight = true;
    std::optional<ui::ColorRef> highlightedBackgroundColor;
    double maximumImageHeight = 0; ///< of all buttons of the row, so that their texts are level
    SwipeVerticalAlignment verticalAlignment = SwipeVerticalAlignment::CenterFirstBaseline;
    ui::Insets contentInsets;

    /// The button's own width, no more than `maximum` where that is above 0.
    [[nodiscard]] double preferredWidth(double maximum) const;
    [[nodiscard]] double intrinsicHeight() const;
    [[nodiscard]] ui::Rect titleRect() const override;
    [[nodiscard]] ui::Rect imageRect() const override;

    [[nodiscard]] bool isHighlighted() const { return highlighted_; }
    /// The text's colour and the picture in the present state.
    [[nodiscard]] ui::ColorRef presentTitleColor() const override;
    [[nodiscard]] const std::optional<ActionImage>& presentImage() const;
    [[nodiscard]] std::string presentImageName() const override;

private:
    void setHighlighted(bool highlighted);
    [[nodiscard]] ui::Rect contentRect() const;
    [[nodiscard]] ui::Size textSize(ui::Size box) const;
    [[nodiscard]] double imageHeight() const { return image_ ? maximumImageHeight : 0; }
    [[nodiscard]] double currentSpacing() const;
    [[nodiscard]] ui::Rect alignmentRect() const;

    const TextMeasuring& texts_;
    std::optional<ActionImage> image_;
    std::optional<ActionImage> highlightedImage_;
    std::optional<ui::ColorRef> highlightedTextColor_;
    bool highlighted_ = false;
};

} // namespace tessivo::swipe
