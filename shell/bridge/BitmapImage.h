#pragma once

#include "Ports/Bitmap.h"

#include <QImage>

#include <memory>

namespace tessivo::shell {

/// The picture to paint, which shares its pixels with `bitmap` and keeps it. Null for a broken one.
[[nodiscard]] QImage toQImage(std::shared_ptr<const Bitmap> bitmap);

/// The picture for the program; null for a null one.
[[nodiscard]] std::shared_ptr<const Bitmap> toBitmap(const QImage& image);

} // namespace tessivo::shell
