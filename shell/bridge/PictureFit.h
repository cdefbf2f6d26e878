#pragma once

#include "Interface/ImageView.h"

#include <QImage>
#include <QRectF>

#include <array>

namespace tessivo::shell {

/// Where all of a picture of that size lies, so that it fits `area` as `mode` says. It may reach beyond.
[[nodiscard]] QRectF fitted(QSizeF picture, const QRectF& area, ui::ContentMode mode);

/// A picture made ready to stand behind the white texts of a card: fitted to `size` points at `scale` pixels
/// each, and shaded behind each of `texts`, in points, as far as it is too bright there.
[[nodiscard]] QImage cardPicture(const QImage& picture, QSizeF size, double scale, ui::ContentMode mode,
                                 const std::array<QRectF, 2>& texts);

} // namespace tessivo::shell
