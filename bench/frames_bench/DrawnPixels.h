#pragma once

#include <QSGGeometryNode>
#include <QSGNode>
#include <QTransform>

#include <atomic>
#include <cstdint>
#include <vector>

class QQuickWindow;

namespace tessivo {

/// Counts the pixels that the graphics processor has to blend for a picture: those of everything that is not
/// opaque, as far as nothing opaque lies over it. Read from the scene graph's triangles, so that it needs
/// OpenGL. Looks at one in ten of the window's pictures from its making on.
class DrawnPixels {
public:
    explicit DrawnPixels(QQuickWindow& window);

    /// Over all pictures so far, for each.
    [[nodiscard]] double blended() const { return blended_.load() / pictures_.load(); }

private:
    struct Drawn {
        const QSGGeometryNode* node;
        QTransform place;
        QRectF clip;
        bool opaque;
    };

    void look(const QSGNode& root);
    void gather(const QSGNode& node, const QTransform& place, const QRectF& clip, double opacity);
    [[nodiscard]] int fill(const Drawn& drawn);
    [[nodiscard]] int fillTriangle(const QPointF (&corners)[3], const Drawn& drawn);

    QSize size_;
    std::vector<Drawn> drawn_;
    std::vector<std::uint32_t> lastNode_; ///< of each pixel: a node counts it once
    std::vector<bool> covered_;
    std::uint32_t nodes_ = 0;
    std::atomic<double> blended_ = 0;
    int passed_ = 0;
    std::atomic<int> pictures_ = 0;
};

} // namespace tessivo
