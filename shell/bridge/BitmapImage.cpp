#include "bridge/BitmapImage.h"

#include <utility>

namespace tessivo::shell {

QImage toQImage(std::shared_ptr<const Bitmap> bitmap) {
    if (!bitmap)
        return {};
    const auto rowLength = static_cast<qsizetype>(bitmap->width) * 4;
    if (std::cmp_not_equal(bitmap->pixels.size(), rowLength * bitmap->height))
        return {};
    const auto* pixels = bitmap->pixels.data();
    const int width = bitmap->width;
    const int height = bitmap->height;
    auto* keeper = new std::shared_ptr(std::move(bitmap));
    return {pixels,
            width,
            height,
            rowLength,
            QImage::Format_RGBA8888,
            [](void* kept) { delete static_cast<std::shared_ptr<const Bitmap>*>(kept); },
            keeper};
}

std::shared_ptr<const Bitmap> toBitmap(const QImage& image) {
    const QImage pixels = image.convertToFormat(QImage::Format_RGBA8888);
    if (pixels.isNull())
        return nullptr;
    auto bitmap = std::make_shared<Bitmap>(Bitmap{pixels.width(), pixels.height(), {}});
    for (int row = 0; row < pixels.height(); ++row) {
        const uchar* line = pixels.constScanLine(row);
        bitmap->pixels.insert(bitmap->pixels.end(), line,
                              line + static_cast<std::ptrdiff_t>(pixels.width()) * 4);
    }
    return bitmap;
}

} // namespace tessivo::shell
