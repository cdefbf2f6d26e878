#include "bridge/CardPaint.h"

#include <QLinearGradient>
#include <QPainter>

namespace tessivo::shell {

CardPaint::CardPaint(QQuickItem* parent) : QQuickPaintedItem(parent) {
    setAntialiasing(true);
}

void CardPaint::setFill(const Fill& fill) {
    if (fill == fill_)
        return;
    fill_ = fill;
    Q_EMIT fillChanged();
    update();
}

void CardPaint::setRadius(double radius) {
    if (radius == radius_)
        return;
    radius_ = radius;
    Q_EMIT radiusChanged();
    update();
}

void CardPaint::paint(QPainter* painter) {
    const QRectF area = boundingRect();
    painter->setPen(Qt::NoPen);
    painter->setBrush(fill_.color);
    if (fill_.fades) {
        const auto point = [&](const QPointF& unit) {
            return QPointF(area.x() + unit.x() * area.width(), area.y() + unit.y() * area.height());
        };
        QLinearGradient gradient(point(fill_.start), point(fill_.end));
        gradient.setColorAt(0, fill_.first);
        gradient.setColorAt(1, fill_.second);
        painter->setBrush(gradient);
    }
    painter->drawRoundedRect(area, radius_, radius_);
}

} // namespace tessivo::shell
