#include "SwipeCells/SwipeActionButton.h"

#include "Ports/TextMeasuring.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace tessivo::swipe {
namespace {

constexpr ui::Font defaultFont{15, ui::FontWeight::Medium};
constexpr double unlimited = std::numeric_limits<double>::max();

/// The smallest rectangle of whole points that holds `rect`.
ui::Rect integral(const ui::Rect& rect) {
    const double left = std::floor(rect.minX());
    const double top = std::floor(rect.minY());
    return {left, top, std::ceil(rect.maxX()) - left, std::ceil(rect.maxY()) - top};
}

} // namespace

SwipeActionButton::SwipeActionButton(const SwipeAction& action, const TextMeasuring& texts)
    : texts_(texts),
      image_(action.image),
      highlightedImage_(action.highlightedImage ? action.highlightedImage : action.image),
      highlightedTextColor_(action.highlightedTextColor) {
    setTitle(action.title.value_or(""));
    setFont(action.font.value_or(defaultFont));
    setTitleColor(action.textColor.value_or(ui::ColorRef::white()));
    setTint(action.textColor.value_or(ui::ColorRef::white()));
    if (image_)
        setImageName(image_->image.name);
    setAccessibilityName(action.accessibilityLabel.value_or(title()));
    highlightedBackgroundColor = action.highlightedBackgroundColor.value_or(ui::ColorRef::of({0, 0, 0, 0.1}));
    addTarget(ui::PressEvent::Down, [this] { setHighlighted(true); });
    addTarget(ui::PressEvent::UpInside, [this] { setHighlighted(false); });
    addTarget(ui::PressEvent::UpOutside, [this] { setHighlighted(false); });
}

void SwipeActionButton::setHighlighted(bool highlighted) {
    highlighted_ = highlighted;
    if (shouldHighlight && highlighted && highlightedBackgroundColor)
        setBackgroundColor(*highlightedBackgroundColor);
    else
        setBackgroundColor(ui::ColorRef::clear());
    notify(ui::ViewChange::Content);
}

ui::ColorRef SwipeActionButton::presentTitleColor() const {
    if (!highlighted_)
        return titleColor();
    return highlightedTextColor_ ? *highlightedTextColor_ : tint();
}

const std::optional<ActionImage>& SwipeActionButton::presentImage() const {
    return highlighted_ ? highlightedImage_ : image_;
}

std::string SwipeActionButton::presentImageName() const {
    return presentImage() ? presentImage()->image.name : std::string();
}

ui::Size SwipeActionButton::textSize(ui::Size box) const {
    const auto extent =
        texts_.measure(title(), {font().size, static_cast<int>(font().weight)}, {box.width, box.height});
    return integral({0, 0, extent.width, extent.height}).size();
}

double SwipeActionButton::currentSpacing() const {
    return !title().empty() && imageHeight() > 0 ? spacing : 0;
}

double SwipeActionButton::preferredWidth(double maximum) const {
    const double limit = maximum > 0 ? maximum : unlimited;
    const double text = textSize({limit, unlimited}).width;
    const double image = image_ ? image_->size.width : 0;
    return std::min(limit, std::max(text, image) + contentInsets.left + contentInsets.right);
}

ui::Rect SwipeActionButton::contentRect() const {
    return {bounds().x + contentInsets.left, bounds().y + contentInsets.top,
            bounds().width - contentInsets.left - contentInsets.right,
            bounds().height - contentInsets.top - contentInsets.bottom};
}

ui::Rect SwipeActionButton::alignmentRect() const {
    const ui::Rect content = contentRect();
    const bool oneLine = verticalAlignment == SwipeVerticalAlignment::CenterFirstBaseline;
    const double text = textSize(oneLine ? ui::Size{unlimited, unlimited} : content.size()).height;
    const double total = text + imageHeight() + currentSpacing();
    return {content.x, content.midY() - total / 2, content.width, total};
}

double SwipeActionButton::intrinsicHeight() const {
    return alignmentRect().height + contentInsets.top + contentInsets.bottom;
}

ui::Rect SwipeActionButton::titleRect() const {
    const ui::Rect content = contentRect();
    const ui::Size text = textSize(content.size());
    return integral({content.midX() - text.width / 2,
                     alignmentRect().minY() + imageHeight() + currentSpacing(), text.width, text.height});
}

ui::Rect SwipeActionButton::imageRect() const {
    if (!image_)
        return {};
    const ui::Size size = image_->size;
    return {contentRect().midX() - size.width / 2, alignmentRect().minY() + (imageHeight() - size.height) / 2,
            size.width, size.height};
}

} // namespace tessivo::swipe
