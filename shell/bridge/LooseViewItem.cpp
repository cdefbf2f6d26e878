#include "bridge/LooseViewItem.h"

#include <utility>

namespace tessivo::shell {
namespace {

QRectF toQRectF(const ui::Rect& rect) {
    return {rect.x, rect.y, rect.width, rect.height};
}

} // namespace

LooseViewItem::LooseViewItem(ui::View& view, const BridgeContext& context, QObject* parent)
    : ViewItem(view, context, parent),
      view_(view),
      button_(dynamic_cast<ui::Button*>(&view)),
      look_(dynamic_cast<ui::ButtonLook*>(&view)) {
    for (ui::View* subview : view.subviews())
        children_.push_back(new LooseViewItem(*subview, context, this));
}

QString LooseViewItem::image() const {
    return look_ ? QString::fromStdString(look_->presentImageName()) : QString();
}

QString LooseViewItem::title() const {
    return button_ ? QString::fromStdString(button_->title()) : QString();
}

TextPiece LooseViewItem::look() const {
    if (!button_ || !look_)
        return {};
    const ui::Font& font = button_->font();
    return {title(), font.size, static_cast<int>(font.weight), context().color(look_->presentTitleColor())};
}

QRectF LooseViewItem::titleRect() const {
    return look_ ? toQRectF(look_->titleRect()) : QRectF();
}

QRectF LooseViewItem::imageRect() const {
    return look_ ? toQRectF(look_->imageRect()) : QRectF();
}

bool LooseViewItem::hover(std::optional<QPointF> point) {
    const QRectF frame = toQRectF(view_.drawnFrame());
    if (point && !(shown() && frame.contains(*point)))
        point.reset();
    bool onButton = point && pressable();
    if (std::exchange(hovered_, onButton) != onButton)
        Q_EMIT hoveredChanged();
    if (point)
        point = *point - frame.topLeft() + QPointF(boundsX(), 0);
    for (LooseViewItem* child : children_)
        onButton = child->hover(point) || onButton;
    return onButton;
}

void LooseViewItem::activate() {
    if (button_)
        button_->tap();
}

} // namespace tessivo::shell
