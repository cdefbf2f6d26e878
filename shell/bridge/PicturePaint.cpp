#include "bridge/PicturePaint.h"

#include "bridge/BitmapImage.h"
#include "bridge/PictureFit.h"

#include <QQuickWindow>
#include <QSGImageNode>

namespace tessivo::shell {
namespace {

/// Puts the part of the picture that meets `area` where it belongs.
void place(QSGImageNode& node, const QRectF& area, ui::ContentMode mode) {
    const QSizeF picture = node.texture()->textureSize();
    const QRectF whole = fitted(picture, area, mode);
    const QRectF seen = whole & area;
    const double x = picture.width() / whole.width();
    const double y = picture.height() / whole.height();
    node.setRect(seen);
    node.setSourceRect((seen.x() - whole.x()) * x, (seen.y() - whole.y()) * y, seen.width() * x,
                       seen.height() * y);
}

} // namespace

PicturePaint::PicturePaint(QQuickItem* parent) : QQuickItem(parent) {
    setFlag(ItemHasContents);
}

void PicturePaint::setView(ImageItem* view) {
    if (view_)
        disconnect(view_, nullptr, this, nullptr);
    view_ = view;
    if (view_)
        connect(view_, &ViewItem::contentChanged, this, &QQuickItem::update);
    update();
    Q_EMIT viewChanged();
}

QSGNode* PicturePaint::updatePaintNode(QSGNode* former, UpdatePaintNodeData*) {
    auto* node = static_cast<QSGImageNode*>(former);
    const auto picture = view_ ? view_->view().image().bitmap : nullptr;
    const bool outdated = !node || picture != inScene_;
    const QImage image = outdated ? toQImage(picture) : QImage();
    if (size().isEmpty() || (outdated && image.isNull())) {
        inScene_.reset();
        delete node;
        return nullptr;
    }
    if (!node) {
        node = window()->createImageNode();
        node->setOwnsTexture(true);
        node->setFiltering(QSGTexture::Linear);
    }
    if (outdated)
        node->setTexture(window()->createTextureFromImage(image));
    inScene_ = picture;
    place(*node, boundingRect(), view_->view().contentMode());
    return node;
}

void PicturePaint::geometryChange(const QRectF& place, const QRectF& former) {
    QQuickItem::geometryChange(place, former);
    if (place.size() != former.size())
        update();
}

} // namespace tessivo::shell
