#pragma once

#include <QImage>

namespace tessivo::shell {

/// Darkens a picture above and below, where white texts stand on it, just as far as its brightest parts there
/// need for them to stay readable: like a shorter exposure, which leaves the colors their strength. A picture
/// that is dark enough stays as it is. For premultiplied pixels.
void darkenForWhiteText(QImage& picture);

} // namespace tessivo::shell
