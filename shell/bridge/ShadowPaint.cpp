#include "bridge/ShadowPaint.h"

#include "bridge/RoundedNode.h"

#include <QPainter>
#include <QQuickWindow>

#include <algorithm>
#include <array>
#include <cmath>
#include <memory>

namespace tessivo::shell {
namespace {

constexpr double shadowReach = 12;
constexpr int outlines = 6; ///< that grow and sink: together they are soft
constexpr double lift = 3;
constexpr double sinking = 0.6; ///< of an outline against the one before
constexpr double lowest = lift + (outlines - 1) * sinking;

/// The shadow of a rectangle that is just large enough for its corners, of `side` pixels with its reach.
QImage shadowOf(int side, double scale, double radius, double strength) {
    QImage image(side, side, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(scale, scale);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor::fromRgbF(0.07F, 0.09F, 0.18F, static_cast<float>(strength)));
    const QRectF over = QRectF(0, 0, side / scale, side / scale)
                            .adjusted(shadowReach, shadowReach, -shadowReach, -shadowReach);
    for (int grown = 0; grown < outlines; ++grown) {
        const QRectF outline =
            over.adjusted(-grown, -grown, grown, grown).translated(0, lift + grown * sinking);
        painter.drawRoundedRect(outline, radius + grown, radius + grown);
    }
    return image;
}

/// One picture of a shadow, stretched around a rectangle: the four corners as they are, and the sides of
/// which each pixel is like the next. The middle, which the rectangle covers, is left out.
class ShadowNode final : public QSGNode {
public:
    ShadowNode(QQuickWindow& window, QSizeF size, double radius, double strength, double scale) {
        const auto half = static_cast<int>(std::min(size.width(), size.height()) * scale / 2);
        const int corner =
            std::min(half, static_cast<int>(std::ceil((shadowReach + radius + lowest) * scale)));
        texture_.reset(window.createTextureFromImage(shadowOf(2 * corner + 1, scale, radius, strength)));
        const double side = corner / scale;
        const std::array across{0.0, side, size.width() - side, size.width()};
        const std::array down{0.0, side, size.height() - side, size.height()};
        const std::array pixels{0, corner, corner + 1, 2 * corner + 1};
        for (std::size_t column = 0; column < 3; ++column) {
            for (std::size_t row = 0; row < 3; ++row) {
                if (column != 1 || row != 1)
                    addTile(
                        *this, window, *texture_,
                        {QPointF(across[column], down[row]), QPointF(across[column + 1], down[row + 1])},
                        {QPointF(pixels[column], pixels[row]), QPointF(pixels[column + 1], pixels[row + 1])});
            }
        }
    }

private:
    std::unique_ptr<QSGTexture> texture_;
};

} // namespace

ShadowPaint::ShadowPaint(QQuickItem* parent) : RoundedItem(parent) {
    setRadius(16);
    connect(this, &ShadowPaint::strengthChanged, this, &QQuickItem::update);
}

double ShadowPaint::reach() const {
    return shadowReach;
}

QSGNode* ShadowPaint::updatePaintNode(QSGNode* former, UpdatePaintNodeData*) {
    const Looks wanted{sizeOnPixels(), scaleOfWindow(), radius(), strength_};
    if (former && wanted == inScene_)
        return former;
    delete former;
    inScene_ = wanted;
    if (wanted.size.isEmpty())
        return nullptr;
    return new ShadowNode(*window(), wanted.size, wanted.radius, wanted.strength, wanted.scale);
}

} // namespace tessivo::shell
