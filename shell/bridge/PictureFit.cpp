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

QImage cardPicture(const QImage& picture, QSizeF size, double scale, double radius, ui::ContentMode mode,
                   const std::array<QRectF, 2>& texts) {
    QImage card((size * scale).toSize(), QImage::Format_ARGB32_Premultiplied);
    card.setDevicePixelRatio(scale);
    card.fill(Qt::transparent);
    if (picture.isNull() || card.isNull())
        return card;
    const QRectF area({}, size);
    QPainter picturePainter(&card);
    picturePainter.setRenderHints(QPainter::SmoothPixmapTransform | QPainter::Antialiasing);
    picturePainter.drawImage(fitted(picture.size(), area, mode), picture);
    picturePainter.end();
    const auto pixels = [scale](const QRectF& text) {
        return QRectF(text.topLeft() * scale, text.size() * scale);
    };
    shadeBehindTexts(card, {pixels(texts[0]), pixels(texts[1])});

    QImage shape(card.size(), QImage::Format_ARGB32_Premultiplied);
    shape.setDevicePixelRatio(scale);
    shape.fill(Qt::transparent);
    QPainter shapePainter(&shape);
    shapePainter.setRenderHint(QPainter::Antialiasing);
    shapePainter.setPen(Qt::NoPen);
    shapePainter.setBrush(Qt::black);
    shapePainter.drawRoundedRect(area, radius, radius);
    shapePainter.end();
    QPainter painter(&card);
    painter.setCompositionMode(QPainter::CompositionMode_DestinationIn);
    painter.drawImage(QPointF(), shape);
    return card;
}

} // namespace tessivo::shell
