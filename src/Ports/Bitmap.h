#pragma once

#include <cstdint>
#include <vector>

namespace tessivo {

/// A picture in memory: rows of red, green, blue, alpha bytes without gaps, alpha not premultiplied.
struct Bitmap {
    int width = 0;
    int height = 0;
    std::vector<std::uint8_t> pixels;

    friend bool operator==(const Bitmap&, const Bitmap&) = default;
};

} // namespace tessivo
