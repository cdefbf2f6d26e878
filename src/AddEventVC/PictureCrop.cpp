#include "AddEventVC/PictureCrop.h"

#include <algorithm>
#include <cmath>

namespace tessivo {
namespace {

/// Whole pixels of one axis, first to one past the last.
struct Span {
    std::size_t begin;
    std::size_t end;
};

Span wholePixels(double from, double to, int length) {
    const auto inside = [length](double edge) {
        return static_cast<std::size_t>(std::fmin(std::fmax(edge, 0), length));
    };
    return {inside(std::floor(from)), inside(std::ceil(to))};
}

} // namespace

std::shared_ptr<const Bitmap> cropped(const Bitmap& picture, const ui::Rect& area) {
    const Span columns = wholePixels(area.minX(), area.maxX(), picture.width);
    const Span rows = wholePixels(area.minY(), area.maxY(), picture.height);
    if (columns.begin >= columns.end || rows.begin >= rows.end)
        return nullptr;
    auto part = std::make_shared<Bitmap>();
    part->width = static_cast<int>(columns.end - columns.begin);
    part->height = static_cast<int>(rows.end - rows.begin);
    part->pixels.reserve(static_cast<std::size_t>(part->width) * static_cast<std::size_t>(part->height) * 4);
    const auto rowLength = static_cast<std::size_t>(picture.width) * 4;
    for (std::size_t row = rows.begin; row < rows.end; ++row) {
        const auto line = picture.pixels.begin() + static_cast<std::ptrdiff_t>(row * rowLength);
        part->pixels.insert(part->pixels.end(), line + static_cast<std::ptrdiff_t>(columns.begin * 4),
                            line + static_cast<std::ptrdiff_t>(columns.end * 4));
    }
    return part;
}

} // namespace tessivo
