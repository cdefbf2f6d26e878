#include "bridge/CardPaint.h"

#include "bridge/RoundedNode.h"

#include <QLinearGradient>
#include <QPainter>

namespace tessivo::shell {
namespace {

QImage pictureOf(const Fill& fill, QSize pixels) {
    QImage image(pixels, QImage::Format_ARGB32_Premultiplied);
    image.fill(fill.fades ? Qt::transparent : fill.color);
    if (!fill.fades)
        return image;
    const auto point = [&](const QPointF& unit) {
        return QPointF(unit.x() * pixels.width(), unit.y() * pixels.height());
    };
    QLinearGradient gradient(point(fill.start), point(fill.end));
    gradient.setColorAt(0, fill.first);
    gradient.setColorAt(1, fill.second);
    QPainter painter(&image);
    painter.fillRect(image.rect(), gradient);
    return image;
}

} // namespace

void CardPaint::setFill(const Fill& fill) {
    if (fill == fill_)
        return;
    fill_ = fill;
    Q_EMIT fillChanged();
    update();
}

QSGNode* CardPaint::updatePaintNode(QSGNode* former, UpdatePaintNodeData*) {
    const Looks wanted{fill_, sizeOnPixels(), scaleOfWindow(), radius()};
    if (former && wanted == inScene_)
        return former;
    delete former;
    inScene_ = wanted;
    const QSize pixels = (wanted.size * wanted.scale).toSize();
    if (pixels.isEmpty() || (!fill_.fades && fill_.color.alpha() == 0))
        return nullptr;
    if (fill_.fades || fill_.color.alpha() < 255)
        return new RoundedNode(*window(), pictureOf(fill_, pixels), wanted.size, wanted.radius, wanted.scale);
    return new RoundedNode(*window(), fill_.color, wanted.size, wanted.radius, wanted.scale);
}

} // namespace tessivo::shell
