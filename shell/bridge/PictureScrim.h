#pragma once

#include <QImage>
#include <QRectF>

#include <array>

namespace tessivo::shell {

/// Shades the picture behind `texts`, in pixels, just as far as the brightest pixels there need for white
/// text to stay readable: from the text to the edges that it stands at, and fading towards the middle, so
/// that no outline is seen. All others keep their color, as do pixels that are dark enough. For premultiplied
/// pixels.
void shadeBehindTexts(QImage& picture, const std::array<QRectF, 2>& texts);

} // namespace tessivo::shell
