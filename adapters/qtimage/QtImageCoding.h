#pragma once

#include "Ports/ImageCoding.h"

namespace tessivo {

/// JPEG, PNG, WebP and GIF, and HEIC and AVIF where a plugin of Qt reads them; nothing else. A picture of
/// more than 64 megapixels is refused by its header, before any of it is decoded; what a false header hides
/// meets Qt's own limit on memory.
class QtImageCoding final : public ImageCoding {
public:
    std::shared_ptr<const Bitmap> decode(std::string_view data,
                                         std::optional<PixelSize> covering) const override;
    std::optional<std::string> jpeg(const Bitmap& bitmap, double quality) const override;
    std::optional<std::string> png(const Bitmap& bitmap) const override;
};

} // namespace tessivo
