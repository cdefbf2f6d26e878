#include "qtimage/QtImageCoding.h"

#include <QBuffer>
#include <QImage>
#include <QImageReader>

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

namespace tessivo {
namespace {

constexpr qint64 maximumPixels = 64'000'000;

bool isTooLarge(QSize size) {
    return static_cast<qint64>(size.width()) * size.height() > maximumPixels;
}

/// `size` reduced so that it just covers `covering`; never enlarged.
QSize reduced(QSize size, PixelSize covering) {
    const double factor = std::max(static_cast<double>(covering.width) / size.width(),
                                   static_cast<double>(covering.height) / size.height());
    if (factor >= 1)
        return size;
    const auto length = [factor](int full) {
        return std::max(1, static_cast<int>(std::lround(full * factor)));
    };
    return {length(size.width()), length(size.height())};
}

/// A file may hold data of any kind, whatever it is called: readers of rarer formats, less tried on hostile
/// data, are not let near it.
bool isKnown(const QByteArray& format) {
    constexpr std::array formats{"jpeg", "png", "webp", "gif", "heic", "heif", "avif"};
    return std::ranges::any_of(formats, [&](const char* known) { return format == known; });
}

std::shared_ptr<const Bitmap> bitmapOf(QImage pixels) {
    pixels.convertTo(QImage::Format_RGBA8888); // in place: a large picture is not held twice
    if (pixels.isNull())
        return nullptr;
    auto bitmap = std::make_shared<Bitmap>();
    bitmap->width = pixels.width();
    bitmap->height = pixels.height();
    const auto rowLength = static_cast<std::size_t>(pixels.width()) * 4;
    bitmap->pixels.reserve(rowLength * static_cast<std::size_t>(pixels.height()));
    for (int row = 0; row < pixels.height(); ++row) {
        const uchar* line = pixels.constScanLine(row);
        bitmap->pixels.insert(bitmap->pixels.end(), line, line + rowLength);
    }
    return bitmap;
}

std::optional<std::string> encoded(const Bitmap& bitmap, const char* format, QImage::Format pixels,
                                   int quality) {
    const auto rowLength = static_cast<qsizetype>(bitmap.width) * 4;
    if (bitmap.width <= 0 || bitmap.height <= 0 ||
        std::cmp_not_equal(bitmap.pixels.size(), rowLength * bitmap.height))
        return std::nullopt;
    const QImage view(bitmap.pixels.data(), bitmap.width, bitmap.height, rowLength, QImage::Format_RGBA8888);
    QBuffer buffer;
    if (!buffer.open(QIODevice::WriteOnly) || !view.convertToFormat(pixels).save(&buffer, format, quality))
        return std::nullopt;
    return buffer.data().toStdString();
}

} // namespace

std::shared_ptr<const Bitmap> QtImageCoding::decode(std::string_view data,
                                                    std::optional<PixelSize> covering) const {
    QByteArray bytes = QByteArray::fromRawData(data.data(), static_cast<qsizetype>(data.size()));
    QBuffer buffer(&bytes);
    if (!buffer.open(QIODevice::ReadOnly))
        return nullptr;
    QImageReader reader(&buffer);
    reader.setAutoTransform(true);
    if (!isKnown(reader.format()))
        return nullptr;
    const QSize size = reader.size();
    if (size.isValid() && isTooLarge(size))
        return nullptr;
    const auto drawn = covering;
    if (covering && size.isValid() && !size.isEmpty()) {
        if (reader.transformation().testFlag(QImageIOHandler::TransformationRotate90))
            std::swap(covering->width, covering->height);
        reader.setScaledSize(reduced(size, *covering));
    }
    QImage image = reader.read();
    if (image.isNull() || isTooLarge(image.size()))
        return nullptr;
    // The first frame of an animation may be larger than its header says.
    if (drawn && image.width() > drawn->width + 1 && image.height() > drawn->height + 1)
        image = image.scaled(reduced(image.size(), *drawn), Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    return bitmapOf(std::move(image));
}

std::optional<std::string> QtImageCoding::jpeg(const Bitmap& bitmap, double quality) const {
    return encoded(bitmap, "JPG", QImage::Format_RGB888, static_cast<int>(std::lround(quality * 100)));
}

std::optional<std::string> QtImageCoding::png(const Bitmap& bitmap) const {
    return encoded(bitmap, "PNG", QImage::Format_RGBA8888, -1);
}

} // namespace tessivo
