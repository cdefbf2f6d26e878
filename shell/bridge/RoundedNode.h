#pragma once

#include <QColor>
#include <QImage>
#include <QSGNode>
#include <QSGTexture>

#include <memory>

class QQuickWindow;

namespace tessivo::shell {

/// A rounded rectangle in the scene. An opaque one is a cross of two bands with four corners laid on it, so
/// that only the corners are blended; parts overlap, because no edge between them may show where a pixel is
/// shared. Made on the render thread.
class RoundedNode final : public QSGNode {
public:
    /// `picture` has the window's pixels for all of the rectangle, `scale` to a point.
    RoundedNode(QQuickWindow& window, QImage picture, QSizeF size, double radius, double scale);
    RoundedNode(QQuickWindow& window, const QColor& color, QSizeF size, double radius, double scale);

private:
    /// Adds all of a picture as one part, which is blended everywhere.
    void addWhole(QQuickWindow& window, const QImage& picture, QSizeF size, double radius);
    /// Adds a cross that leaves out a square of `side` points at each corner.
    void addBands(QQuickWindow& window, QSizeF size, double side);
    /// Lays the corners of `picture`, each of so many pixels, on the corners of the rectangle.
    void addCorners(QQuickWindow& window, const QImage& picture, QSizeF size, int pixels, double radius,
                    double scale);

    std::unique_ptr<QSGTexture> inside_;
    std::unique_ptr<QSGTexture> corners_;
};

/// Adds `part` of a texture, in pixels, to the scene. The texture outlives the node.
void addTile(QSGNode& parent, QQuickWindow& window, QSGTexture& texture, const QRectF& place,
             const QRectF& part);

} // namespace tessivo::shell
