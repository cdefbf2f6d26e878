#pragma once

#include <QImage>
#include <QRectF>

namespace tessivo::shell {

/// Shades the pixels under `text`, and a soft edge of `reach` pixels around them, just as far as the
/// brightest of them need for white text to stay readable. All others keep their color, as do pixels that are
/// dark enough. For premultiplied pixels.
void shadeBehindText(QImage& picture, const QRectF& text, double reach);

} // namespace tessivo::shell
