#pragma once

#include "Ports/Bitmap.h"

#include <cstddef>
#include <cstdint>

namespace tessivo {

/// A picture whose columns have a red of ten times their number.
inline Bitmap stripes(int width, int height) {
    Bitmap bitmap{width, height, {}};
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x)
            bitmap.pixels.insert(bitmap.pixels.end(), {static_cast<std::uint8_t>(x * 10), 0, 0, 255});
    }
    return bitmap;
}

/// The red of a column.
inline int redAt(const Bitmap& bitmap, int x) {
    return bitmap.pixels[static_cast<std::size_t>(x) * 4];
}

} // namespace tessivo
