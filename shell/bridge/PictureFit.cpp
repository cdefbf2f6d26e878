#include "bridge/PictureFit.h"

#include "bridge/PictureScrim.h"

#include <QPainter>

namespace tessivo::shell {
QRectF fitted(QSizeF picture, const QRectF& area, ui::ContentMode mode) {
    QSizeF size = picture;
    switch (mode) {
    case ui::ContentMode::ScaleToFill:
        size = area.size();
        break;
    case ui::ContentMode::AspectFit:
        size.scale(area.size(), Qt::KeepAspectRatio);
        break;
    case ui::ContentMode::AspectFill:
        size.scale(area.size(), Qt::KeepAspectRatioByExpanding);
        break;
    case ui::ContentMode::Center:
        break;
    }
    QRectF whole({}, size);
    whole.moveCenter(area.center());
    return whole;
}

QImage cardPicture(const QImage& picture, QSizeF size, double scale, ui::ContentMode mode,
                   const std::array<QRectF, 2>& texts) {
    QImage card((size * scale).toSize(), QImage::Format_ARGB32_Premultiplied);
    card.fill(Qt::transparent);
    if (picture.isNull() || card.isNull())
        return card;
    QPainter painter(&card);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.scale(scale, scale);
    // Whole pixels: none at the edge is half a picture.
    painter.drawImage(fitted(picture.size(), QRectF({}, QSizeF(card.size()) / scale), mode), picture);
    painter.end();
    const auto pixels = [scale](const QRectF& text) {
        return QRectF(text.topLeft() * scale, text.size() * scale);
    };
    shadeBehindTexts(card, {pixels(texts[0]), pixels(texts[1])});
    return card;
}

} // namespace tessivo::shell
