#pragma once

#include "Interface/ImageView.h"

#include <QImage>
#include <QRectF>

namespace tessivo::shell {

/// Where all of a picture of that size lies, so that it fits `area` as `mode` says. It may reach beyond.
[[nodiscard]] QRectF fitted(QSizeF picture, const QRectF& area, ui::ContentMode mode);

/// A picture made ready to stand behind the white text of a card: fitted to `size` points at `scale` pixels
/// each, its corners rounded, and darkened above and below just as far as its brightest parts there need for
/// the text to stay readable.
[[nodiscard]] QImage cardPicture(const QImage& picture, QSizeF size, double scale, double radius,
                                 ui::ContentMode mode);

} // namespace tessivo::shell
