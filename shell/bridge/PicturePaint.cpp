#include "bridge/PicturePaint.h"

#include "bridge/BitmapImage.h"

#include <QPainter>

namespace tessivo::shell {
namespace {

QSizeF fitted(QSizeF picture, QSizeF area, ui::ContentMode mode) {
    switch (mode) {
    case ui::ContentMode::ScaleToFill:
        return area;
    case ui::ContentMode::AspectFit:
        return picture.scaled(area, Qt::KeepAspectRatio);
    case ui::ContentMode::AspectFill:
        return picture.scaled(area, Qt::KeepAspectRatioByExpanding);
    case ui::ContentMode::Center:
        return picture;
    }
    return area;
}

} // namespace

void PicturePaint::setView(ImageItem* view) {
    if (view_)
        disconnect(view_, nullptr, this, nullptr);
    view_ = view;
    if (view_)
        connect(view_, &ViewItem::contentChanged, this, [this] { update(); });
    update();
    Q_EMIT viewChanged();
}

void PicturePaint::paint(QPainter* painter) {
    if (!view_)
        return;
    const QImage picture = toQImage(view_->view().image().bitmap);
    if (picture.isNull())
        return;
    QRectF place({}, fitted(picture.size(), size(), view_->view().contentMode()));
    place.moveCenter(boundingRect().center());
    painter->setRenderHint(QPainter::SmoothPixmapTransform);
    painter->drawImage(place, picture);
}

} // namespace tessivo::shell
