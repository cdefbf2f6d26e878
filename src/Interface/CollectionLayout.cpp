#include "Interface/CollectionLayout.h"

#include <algorithm>
#include <cmath>

namespace tessivo::ui {

void LineLayout::prepare(int count, Size itemSize, Size bounds) {
    count_ = count;
    itemSize_ = itemSize;
    bounds_ = bounds;
}

double LineLayout::length() const {
    return axis_ == Axis::Vertical ? itemSize_.height : itemSize_.width;
}

Size LineLayout::contentSize() const {
    const double along = count_ == 0 ? 0 : 2 * inset_ + count_ * length() + (count_ - 1) * spacing_;
    return axis_ == Axis::Vertical ? Size{bounds_.width, along} : Size{along, bounds_.height};
}

Rect LineLayout::frame(int item) const {
    const double along = inset_ + item * (length() + spacing_);
    if (axis_ == Axis::Vertical)
        return {(bounds_.width - itemSize_.width) / 2, along, itemSize_.width, itemSize_.height};
    return {along, (bounds_.height - itemSize_.height) / 2, itemSize_.width, itemSize_.height};
}

ItemRange LineLayout::itemsIn(const Rect& visible) const {
    const double pitch = length() + spacing_;
    if (count_ == 0 || pitch <= 0 || length() <= 0)
        return {};
    const double from = axis_ == Axis::Vertical ? visible.minY() : visible.minX();
    const double to = axis_ == Axis::Vertical ? visible.maxY() : visible.maxX();
    const double limit = count_;
    const double first = std::clamp(std::floor((from - inset_ - length()) / pitch) + 1, 0.0, limit);
    const double end = std::clamp(std::ceil((to - inset_) / pitch), first, limit);
    return {static_cast<int>(first), static_cast<int>(end)};
}

} // namespace tessivo::ui
