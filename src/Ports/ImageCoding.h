#pragma once

#include "Ports/Bitmap.h"

#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace tessivo {

struct PixelSize {
    int width = 0;
    int height = 0;

    friend bool operator==(const PixelSize&, const PixelSize&) = default;
};

/// Pictures from JPEG, PNG, WebP, GIF, HEIC and AVIF data, as far as the machine reads them, and back. Pure,
/// any thread.
class ImageCoding {
public:
    virtual ~ImageCoding() = default;

    /// The picture in `data`, turned upright; null where the data make no picture, or one too large to hold.
    /// With `covering`, a larger picture is reduced while it is read, so that it just covers that size: no
    /// more memory is spent than is drawn.
    [[nodiscard]] virtual std::shared_ptr<const Bitmap> decode(std::string_view data,
                                                               std::optional<PixelSize> covering) const = 0;

    /// The picture as JPEG at `quality` from 0 to 1; empty where it cannot be coded.
    [[nodiscard]] virtual std::optional<std::string> jpeg(const Bitmap& bitmap, double quality) const = 0;

    /// The picture as PNG; empty where it cannot be coded.
    [[nodiscard]] virtual std::optional<std::string> png(const Bitmap& bitmap) const = 0;
};

} // namespace tessivo
