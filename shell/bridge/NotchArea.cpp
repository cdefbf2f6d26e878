#include "bridge/NotchArea.h"

#include <QQuickWindow>
#include <QWheelEvent>

namespace tessivo::shell {
namespace {

constexpr int notch = 120;    // eighths of a degree
constexpr qint64 pause = 400; ///< ms without a wheel event, after which scrolling begins anew

} // namespace

void NotchArea::setOver(QQuickItem* item) {
    if (over_)
        over_->removeEventFilter(this);
    over_ = item;
    if (item)
        item->installEventFilter(this);
}

bool NotchArea::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Wheel && watched == over_) {
        event->ignore();
        return true;
    }
    if (event->type() == QEvent::Wheel) {
        const auto& wheel = *static_cast<const QWheelEvent*>(event);
        if (!sinceLast_.isValid() || sinceLast_.elapsed() > pause) {
            beganHere_ = isVisible() && contains(mapFromScene(wheel.position()));
            rest_ = 0;
        }
        sinceLast_.start();
    }
    return QQuickItem::eventFilter(watched, event);
}

void NotchArea::wheelEvent(QWheelEvent* event) {
    const auto* scope = parentItem();
    if (!beganHere_ && !(scope && scope->hasActiveFocus()))
        return event->ignore();
    event->accept();
    rest_ -= event->angleDelta().y();
    const int steps = rest_ / notch;
    rest_ -= steps * notch;
    if (steps != 0)
        Q_EMIT turned(steps);
}

void NotchArea::itemChange(ItemChange change, const ItemChangeData& data) {
    if (change == ItemSceneChange) {
        if (watched_)
            watched_->removeEventFilter(this);
        watched_ = data.window;
        if (watched_)
            watched_->installEventFilter(this);
    }
    QQuickItem::itemChange(change, data);
}

} // namespace tessivo::shell
