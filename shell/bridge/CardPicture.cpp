#include "bridge/CardPicture.h"

#include "bridge/BitmapImage.h"
#include "bridge/PictureFit.h"

#include <QQuickWindow>
#include <QSGImageNode>

#include <cmath>

namespace tessivo::shell {
namespace {

/// In steps, so that a text that grows by a letter does not make the picture anew.
QRectF coarse(const QRectF& text) {
    constexpr double step = 16;
    if (text.isEmpty())
        return {};
    return {QPointF(std::floor(text.left() / step) * step, std::floor(text.top() / step) * step),
            QPointF(std::ceil(text.right() / step) * step, std::ceil(text.bottom() / step) * step)};
}

} // namespace

CardPicture::CardPicture(QQuickItem* parent) : QQuickItem(parent) {
    setFlag(ItemHasContents);
    connect(this, &CardPicture::textsChanged, this, &QQuickItem::update);
}

void CardPicture::setView(ImageItem* view) {
    if (view_)
        disconnect(view_, nullptr, this, nullptr);
    view_ = view;
    if (view_)
        connect(view_, &ViewItem::contentChanged, this, &QQuickItem::update);
    update();
    Q_EMIT viewChanged();
}

void CardPicture::setRadius(double radius) {
    if (radius == radius_)
        return;
    radius_ = radius;
    update();
    Q_EMIT radiusChanged();
}

CardPicture::Looks CardPicture::looks() const {
    if (!view_)
        return {};
    return {view_->view().image().bitmap,
            view_->view().contentMode(),
            size(),
            window()->effectiveDevicePixelRatio(),
            radius_,
            {coarse(upperText_), coarse(lowerText_)}};
}

QSGNode* CardPicture::updatePaintNode(QSGNode* former, UpdatePaintNodeData*) {
    auto* node = static_cast<QSGImageNode*>(former);
    Looks wanted = looks();
    if (!wanted.picture || wanted.size.isEmpty()) {
        inScene_ = {};
        delete node;
        return nullptr;
    }
    if (node && wanted == inScene_)
        return node;
    const QImage card = cardPicture(toQImage(wanted.picture), wanted.size, wanted.scale, wanted.radius,
                                    wanted.mode, wanted.texts);
    if (!node) {
        node = window()->createImageNode();
        node->setOwnsTexture(true);
        node->setFiltering(QSGTexture::Linear);
    }
    node->setTexture(window()->createTextureFromImage(card));
    node->setRect(boundingRect());
    node->setSourceRect(QRectF(QPointF(), node->texture()->textureSize()));
    inScene_ = std::move(wanted);
    return node;
}

void CardPicture::geometryChange(const QRectF& place, const QRectF& former) {
    QQuickItem::geometryChange(place, former);
    if (place.size() != former.size())
        update();
}

} // namespace tessivo::shell
