#include "bridge/CardPicture.h"

#include "bridge/BitmapImage.h"
#include "bridge/PictureFit.h"
#include "bridge/RoundedNode.h"

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

CardPicture::CardPicture(QQuickItem* parent) : RoundedItem(parent) {
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

CardPicture::Looks CardPicture::looks() const {
    if (!view_)
        return {};
    return {view_->view().image().bitmap,
            view_->view().contentMode(),
            sizeOnPixels(),
            scaleOfWindow(),
            radius(),
            {coarse(upperText_), coarse(lowerText_)}};
}

QSGNode* CardPicture::updatePaintNode(QSGNode* former, UpdatePaintNodeData*) {
    Looks wanted = looks();
    if (former && wanted == inScene_)
        return former;
    delete former;
    inScene_ = wanted;
    if (!wanted.picture || wanted.size.isEmpty())
        return nullptr;
    const QImage card =
        cardPicture(toQImage(wanted.picture), wanted.size, wanted.scale, wanted.mode, wanted.texts);
    return new RoundedNode(*window(), card, wanted.size, wanted.radius, wanted.scale);
}

} // namespace tessivo::shell
