#include "bridge/FramePaint.h"

#include <QPainter>
#include <QPainterPath>

namespace tessivo::shell {
namespace {

constexpr double radius = 16;
constexpr double lineWidth = 1.5;

} // namespace

FramePaint::FramePaint(QQuickItem* parent) : QQuickPaintedItem(parent) {
    setAntialiasing(true);
}

void FramePaint::setFrame(const QRectF& frame) {
    if (frame == frame_)
        return;
    frame_ = frame;
    update();
    Q_EMIT frameChanged();
}

void FramePaint::paint(QPainter* painter) {
    QPainterPath around; // odd and even: what lies in both is left out
    around.addRect(boundingRect());
    around.addRoundedRect(frame_, radius, radius);
    painter->fillPath(around, QColor::fromRgbF(0, 0, 0, static_cast<float>(shade_)));
    painter->setPen(QPen(Qt::white, lineWidth));
    painter->drawRoundedRect(frame_, radius, radius);
}

} // namespace tessivo::shell
