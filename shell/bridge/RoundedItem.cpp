#include "bridge/RoundedItem.h"

#include <QQuickWindow>

#include <utility>

namespace tessivo::shell {

void RoundedItem::setRadius(double radius) {
    if (std::exchange(radius_, radius) == radius)
        return;
    update();
    Q_EMIT radiusChanged();
}

double RoundedItem::scaleOfWindow() const {
    return window()->effectiveDevicePixelRatio();
}

QSizeF RoundedItem::sizeOnPixels() const {
    return QSizeF((size() * scaleOfWindow()).toSize()) / scaleOfWindow();
}

void RoundedItem::geometryChange(const QRectF& place, const QRectF& former) {
    QQuickItem::geometryChange(place, former);
    if (place.size() != former.size())
        update();
}

void RoundedItem::itemChange(ItemChange change, const ItemChangeData& data) {
    QQuickItem::itemChange(change, data);
    if (change == ItemDevicePixelRatioHasChanged)
        update();
}

} // namespace tessivo::shell
