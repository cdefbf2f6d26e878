#include "bridge/RoundedNode.h"

#include <QPainter>
#include <QQuickWindow>
#include <QSGImageNode>
#include <QSGRendererInterface>

#include <algorithm>
#include <cmath>

namespace tessivo::shell {
namespace {

constexpr int overlap = 1; ///< pixels that corners and bands share
constexpr int margin = 1;  ///< pixels beside a corner, so that none of the next one mixes in at its edges

/// How far the corners reach into a picture of that size.
int cornerPixels(QSize picture, double radius, double scale) {
    if (radius == 0)
        return 0;
    return std::min({static_cast<int>(std::ceil(radius * scale)) + overlap, (picture.width() + 1) / 2,
                     (picture.height() + 1) / 2});
}

QImage rounded(const QImage& picture, double radius) {
    QImage shape(picture.size(), QImage::Format_ARGB32_Premultiplied);
    shape.fill(Qt::transparent);
    QPainter painter(&shape);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(Qt::black);
    painter.drawRoundedRect(shape.rect(), radius, radius);
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    painter.drawImage(QPoint(), picture);
    return shape;
}

/// The four corners of a picture side by side, each with what lies beside it.
QImage cornersOf(const QImage& picture, int pixels) {
    QImage corners(2 * pixels, 2 * pixels, picture.format());
    corners.fill(Qt::transparent);
    QPainter painter(&corners);
    painter.setCompositionMode(QPainter::CompositionMode_Source);
    for (const int x : {0, 1}) {
        for (const int y : {0, 1}) {
            const QPoint from(x * (picture.width() - pixels), y * (picture.height() - pixels));
            painter.drawImage(QPoint(x, y) * pixels, picture, QRect(from, QSize(pixels, pixels)));
        }
    }
    return corners;
}

bool isOpaque(const QImage& picture) {
    for (int row = 0; row < picture.height(); ++row) {
        const auto* line = reinterpret_cast<const QRgb*>(picture.constScanLine(row));
        if (std::any_of(line, line + picture.width(), [](QRgb pixel) { return qAlpha(pixel) != 255; }))
            return false;
    }
    return true;
}

/// Without a graphics processor each part of a moving card would be rounded to pixels by itself.
bool drawsParts(const QQuickWindow& window) {
    return window.rendererInterface()->graphicsApi() != QSGRendererInterface::Software;
}

} // namespace

void addTile(QSGNode& parent, QQuickWindow& window, QSGTexture& texture, const QRectF& place,
             const QRectF& part) {
    if (place.isEmpty())
        return;
    QSGImageNode* node = window.createImageNode();
    node->setTexture(&texture);
    node->setFiltering(QSGTexture::Linear);
    node->setRect(place);
    node->setSourceRect(part);
    parent.appendChildNode(node);
}

RoundedNode::RoundedNode(QQuickWindow& window, QImage picture, QSizeF size, double radius, double scale) {
    picture.convertTo(QImage::Format_ARGB32_Premultiplied);
    if (!isOpaque(picture) || !drawsParts(window)) {
        addWhole(window, picture, size, radius * scale);
        return;
    }
    const int pixels = cornerPixels(picture.size(), radius, scale);
    picture.reinterpretAsFormat(QImage::Format_RGB32);
    inside_.reset(window.createTextureFromImage(picture));
    addBands(window, size, std::max(0, pixels - overlap) / scale);
    addCorners(window, picture, size, pixels, radius, scale);
}

RoundedNode::RoundedNode(QQuickWindow& window, const QColor& color, QSizeF size, double radius,
                         double scale) {
    const QSize whole = (size * scale).toSize();
    const int pixels = cornerPixels(whole, radius, scale);
    const bool inParts = drawsParts(window);
    const int side = 2 * (pixels + margin);
    const QSize needed = QSize(side, side).boundedTo(whole).expandedTo({1, 1});
    QImage picture(inParts ? needed : whole, QImage::Format_RGB32);
    picture.fill(color);
    if (!inParts) {
        addWhole(window, picture, size, radius * scale);
        return;
    }
    inside_.reset(window.createTextureFromImage(picture)); // a node of one color would be blended
    addBands(window, size, std::max(0, pixels - overlap) / scale);
    addCorners(window, picture, size, pixels, radius, scale);
}

void RoundedNode::addWhole(QQuickWindow& window, const QImage& picture, QSizeF size, double radius) {
    inside_.reset(window.createTextureFromImage(rounded(picture, radius)));
    addTile(*this, window, *inside_, {{}, size}, picture.rect());
}

void RoundedNode::addBands(QQuickWindow& window, QSizeF size, double side) {
    const QRectF whole({}, size); // without corners both bands are all of it, and one is never seen
    const QSizeF pixels = inside_->textureSize();
    const double x = pixels.width() / size.width();
    const double y = pixels.height() / size.height();
    for (const QRectF& band : {whole.adjusted(0, side, 0, -side), whole.adjusted(side, 0, -side, 0)})
        addTile(*this, window, *inside_, band,
                {band.x() * x, band.y() * y, band.width() * x, band.height() * y});
}

void RoundedNode::addCorners(QQuickWindow& window, const QImage& picture, QSizeF size, int pixels,
                             double radius, double scale) {
    if (pixels == 0)
        return;
    corners_.reset(
        window.createTextureFromImage(cornersOf(rounded(picture, radius * scale), pixels + margin)));
    const double side = pixels / scale;
    for (const int x : {0, 1}) {
        for (const int y : {0, 1})
            addTile(*this, window, *corners_,
                    {x * (size.width() - side), y * (size.height() - side), side, side},
                    QRectF(x * (pixels + 2 * margin), y * (pixels + 2 * margin), pixels, pixels));
    }
}

} // namespace tessivo::shell
