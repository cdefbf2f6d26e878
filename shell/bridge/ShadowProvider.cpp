#include "bridge/ShadowProvider.h"

#include <QPainter>

#include <algorithm>

namespace tessivo::shell {
namespace {

constexpr double reach = 12; ///< of the shadow beyond its rectangle; SoftShadow.qml counts on it
constexpr int outlines = 6;  ///< that grow and sink: together they are soft
constexpr double lift = 3;
constexpr double sinking = 0.6; ///< of an outline against the one before
constexpr QSizeF middle(2, 8);

} // namespace

QImage ShadowProvider::requestImage(const QString& id, QSize* size, const QSize&) {
    const double radius = id.section(u'/', 0, 0).toDouble();
    const double strength = id.section(u'/', 1, 1).toDouble();
    const double scale = std::max(1.0, id.section(u'/', 2, 2).toDouble());
    const QSizeF under(2 * radius + middle.width(), 2 * radius + middle.height());
    const QSizeF points(under.width() + 2 * reach, under.height() + 2 * reach);
    QImage image((points * scale).toSize(), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.scale(image.width() / points.width(), image.height() / points.height());
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor::fromRgbF(0.07F, 0.09F, 0.18F, static_cast<float>(strength)));
    for (int grown = 0; grown < outlines; ++grown) {
        const QRectF outline(reach - grown, reach - grown + lift + grown * sinking, under.width() + 2 * grown,
                             under.height() + 2 * grown);
        painter.drawRoundedRect(outline, radius + grown, radius + grown);
    }
    if (size)
        *size = image.size();
    return image;
}

} // namespace tessivo::shell
