#include "DrawnPixels.h"

#include <QMatrix4x4>
#include <QQuickItem>
#include <QQuickWindow>
#include <QSGMaterial>

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <ranges>

namespace tessivo {
namespace {

/// Stands in the scene: its node leads to all others.
class Probe final : public QQuickItem {
public:
    explicit Probe(QQuickItem* parent) : QQuickItem(parent) { setFlag(ItemHasContents); }

    [[nodiscard]] const QSGNode* root() const {
        const QSGNode* node = node_;
        while (node && node->parent())
            node = node->parent();
        return node;
    }

protected:
    QSGNode* updatePaintNode(QSGNode* former, UpdatePaintNodeData*) override {
        return node_ = former ? former : new QSGNode;
    }

private:
    QSGNode* node_ = nullptr;
};

QPointF vertex(const QSGGeometry& geometry, int index) {
    if (geometry.indexCount() > 0) {
        index = geometry.indexType() == QSGGeometry::UnsignedShortType
                    ? geometry.indexDataAsUShort()[index]
                    : static_cast<int>(geometry.indexDataAsUInt()[index]);
    }
    const auto* bytes = static_cast<const char*>(geometry.vertexData()) +
                        static_cast<std::ptrdiff_t>(index) * geometry.sizeOfVertex();
    const auto* place = reinterpret_cast<const float*>(bytes);
    return {place[0], place[1]};
}

/// Twice the area of a triangle, negative if it runs the other way around.
double area(const QPointF& a, const QPointF& b, const QPointF& c) {
    return (b.x() - a.x()) * (c.y() - a.y()) - (b.y() - a.y()) * (c.x() - a.x());
}

} // namespace

DrawnPixels::DrawnPixels(QQuickWindow& window) : size_(window.size() * window.devicePixelRatio()) {
    auto* probe = new Probe(window.contentItem());
    QObject::connect(
        &window, &QQuickWindow::afterRendering, probe,
        [this, probe] {
            const QSGNode* root = probe->root();
            if (root && passed_++ % 10 == 0)
                look(*root);
        },
        Qt::DirectConnection);
}

void DrawnPixels::look(const QSGNode& root) {
    drawn_.clear();
    const auto pixels = static_cast<std::size_t>(size_.width()) * static_cast<std::size_t>(size_.height());
    covered_.assign(pixels, false);
    lastNode_.resize(pixels);
    gather(root, {}, QRectF({}, size_), 1);
    int blended = 0;
    for (const Drawn& drawn : drawn_ | std::views::reverse) {
        const int filled = fill(drawn);
        if (!drawn.opaque)
            blended += filled;
    }
    blended_ = blended_ + blended;
    ++pictures_;
}

void DrawnPixels::gather(const QSGNode& node, const QTransform& place, const QRectF& clip, double opacity) {
    if (node.isSubtreeBlocked())
        return;
    QTransform inner = place;
    QRectF innerClip = clip;
    if (node.type() == QSGNode::TransformNodeType)
        inner = static_cast<const QSGTransformNode&>(node).matrix().toTransform() * place;
    else if (node.type() == QSGNode::OpacityNodeType)
        opacity *= static_cast<const QSGOpacityNode&>(node).opacity();
    else if (node.type() == QSGNode::ClipNodeType)
        innerClip &= place.mapRect(static_cast<const QSGClipNode&>(node).clipRect());
    else if (node.type() == QSGNode::GeometryNodeType) {
        const auto& geometry = static_cast<const QSGGeometryNode&>(node);
        const QSGMaterial* material = geometry.activeMaterial();
        const bool blends = !material || material->flags() & QSGMaterial::Blending || opacity < 0.999;
        drawn_.push_back({&geometry, place, clip, !blends});
    }
    for (const QSGNode* child = node.firstChild(); child; child = child->nextSibling())
        gather(*child, inner, innerClip, opacity);
}

int DrawnPixels::fill(const Drawn& drawn) {
    const QSGGeometry* geometry = drawn.node->geometry();
    if (!geometry || !drawn.node->activeMaterial())
        return 0;
    ++nodes_;
    const int count = geometry->indexCount() > 0 ? geometry->indexCount() : geometry->vertexCount();
    const int step = geometry->drawingMode() == QSGGeometry::DrawTriangles ? 3 : 1;
    int filled = 0;
    for (int first = 0; first + 2 < count; first += step) {
        QPointF corners[3];
        for (int corner = 0; corner < 3; ++corner)
            corners[corner] = drawn.place.map(vertex(*geometry, first + corner));
        filled += fillTriangle(corners, drawn);
    }
    return filled;
}

int DrawnPixels::fillTriangle(const QPointF (&corners)[3], const Drawn& drawn) {
    const double whole = area(corners[0], corners[1], corners[2]);
    if (whole == 0)
        return 0;
    const auto [left, right] = std::ranges::minmax({corners[0].x(), corners[1].x(), corners[2].x()});
    const auto [top, bottom] = std::ranges::minmax({corners[0].y(), corners[1].y(), corners[2].y()});
    const QRectF box = QRectF(left, top, right - left, bottom - top) & drawn.clip;
    int filled = 0;
    for (int y = static_cast<int>(std::ceil(box.top() - 0.5)); y + 0.5 < box.bottom(); ++y) {
        for (int x = static_cast<int>(std::ceil(box.left() - 0.5)); x + 0.5 < box.right(); ++x) {
            const auto pixel = static_cast<std::size_t>(y) * static_cast<std::size_t>(size_.width()) +
                               static_cast<std::size_t>(x);
            if (covered_[pixel] || lastNode_[pixel] == nodes_)
                continue;
            const QPointF centre(x + 0.5, y + 0.5);
            bool inside = true;
            for (int side = 0; side < 3; ++side)
                inside = inside && area(corners[side], corners[(side + 1) % 3], centre) * whole >= 0;
            if (!inside)
                continue;
            lastNode_[pixel] = nodes_;
            covered_[pixel] = drawn.opaque;
            ++filled;
        }
    }
    return filled;
}

} // namespace tessivo
