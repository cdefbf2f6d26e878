#include "bridge/PressArea.h"

#include <QCursor>
#include <QMouseEvent>

#include <utility>

namespace tessivo::shell {

PressArea::PressArea(QQuickItem* parent) : Pressable(parent) {
    setAcceptedMouseButtons(Qt::LeftButton);
    setAcceptHoverEvents(true);
    showCursor();
}

void PressArea::setButton(ButtonItem* button) {
    if (button_ == button)
        return;
    if (button_)
        button_->disconnect(this);
    button_ = button;
    if (button) {
        const auto follow = [this] {
            setVisible(button_->shown());
            setEnabled(button_->enabled());
        };
        connect(button, &ButtonItem::appearanceChanged, this, follow);
        connect(button, &ButtonItem::contentChanged, this, follow);
        connect(button, &ButtonItem::menuOpened, this, &PressArea::menuOpened);
        follow();
    }
    Q_EMIT buttonChanged();
}

void PressArea::click() {
    if (!isEnabled())
        return;
    if (button_) {
        // A finger that is down has pressed it already.
        if (!std::exchange(down_, false))
            button_->press();
        button_->releaseInside();
    }
    Pressable::click();
}

void PressArea::mousePressEvent(QMouseEvent* event) {
    if (focusOnTouch_)
        forceActiveFocus(Qt::MouseFocusReason);
    down_ = true;
    setPressed(true);
    if (button_)
        button_->press();
    event->accept();
}

void PressArea::mouseMoveEvent(QMouseEvent* event) {
    setPressed(down_ && contains(event->position()));
}

void PressArea::mouseReleaseEvent(QMouseEvent* event) {
    if (!down_ || !contains(event->position()))
        return letGo();
    setPressed(false);
    click();
    down_ = false;
}

void PressArea::mouseUngrabEvent() {
    letGo();
}

void PressArea::letGo() {
    setPressed(false);
    if (std::exchange(down_, false) && button_)
        button_->releaseOutside();
}

void PressArea::hoverEnterEvent(QHoverEvent* /*event*/) {
    setHovered(true);
}

void PressArea::hoverLeaveEvent(QHoverEvent* /*event*/) {
    setHovered(false);
}

void PressArea::itemChange(ItemChange change, const ItemChangeData& data) {
    Pressable::itemChange(change, data);
    if (change != ItemEnabledHasChanged && change != ItemVisibleHasChanged)
        return;
    showCursor();
    if (isEnabled() && isVisible())
        return;
    letGo();
    setHovered(false);
}

void PressArea::showCursor() {
    setCursor(isEnabled() ? Qt::PointingHandCursor : Qt::ArrowCursor);
}

void PressArea::setPressed(bool pressed) {
    if (std::exchange(pressed_, pressed) != pressed)
        Q_EMIT pressedChanged();
}

void PressArea::setHovered(bool hovered) {
    if (std::exchange(hovered_, hovered) != hovered)
        Q_EMIT hoveredChanged();
}

} // namespace tessivo::shell
