#include "bridge/ShadowPaint.h"

#include <QPainter>

namespace tessivo::shell {
namespace {

constexpr double shadowReach = 12;
constexpr int outlines = 6; ///< that grow and sink: together they are soft
constexpr double lift = 3;
constexpr double sinking = 0.6; ///< of an outline against the one before

} // namespace

ShadowPaint::ShadowPaint(QQuickItem* parent) : QQuickPaintedItem(parent) {
    setAntialiasing(true);
    connect(this, &ShadowPaint::looksChanged, this, [this] { update(); });
}

double ShadowPaint::reach() const {
    return shadowReach;
}

void ShadowPaint::paint(QPainter* painter) {
    const QRectF over = boundingRect().adjusted(shadowReach, shadowReach, -shadowReach, -shadowReach);
    painter->setPen(Qt::NoPen);
    painter->setBrush(QColor::fromRgbF(0.07F, 0.09F, 0.18F, static_cast<float>(strength_)));
    for (int grown = 0; grown < outlines; ++grown) {
        const QRectF outline =
            over.adjusted(-grown, -grown, grown, grown).translated(0, lift + grown * sinking);
        painter->drawRoundedRect(outline, radius_ + grown, radius_ + grown);
    }
}

} // namespace tessivo::shell
