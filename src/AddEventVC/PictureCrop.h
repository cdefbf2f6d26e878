#pragma once

#include "Interface/Geometry.h"
#include "Ports/Bitmap.h"

#include <memory>

namespace tessivo {

/// The part of `picture` under `area`, which is in its pixels: grown to whole pixels, then cut to the
/// picture. Null where nothing is left.
[[nodiscard]] std::shared_ptr<const Bitmap> cropped(const Bitmap& picture, const ui::Rect& area);

} // namespace tessivo
