#include "SettingVC/ApplicationsLayout.h"

#include <algorithm>
#include <cmath>

namespace tessivo {

void ApplicationsLayout::prepare(int count, ui::Size itemSize, ui::Size) {
    count_ = count;
    itemSize_ = itemSize;
}

ui::Size ApplicationsLayout::contentSize() const {
    const int columns = (count_ + rows - 1) / rows;
    return {columns * itemSize_.width, rows * itemSize_.height};
}

ui::Rect ApplicationsLayout::frame(int item) const {
    return {item / rows * itemSize_.width, item % rows * itemSize_.height, itemSize_.width, itemSize_.height};
}

ui::ItemRange ApplicationsLayout::itemsIn(const ui::Rect& visible) const {
    if (count_ == 0 || itemSize_.width <= 0)
        return {};
    const double columns = std::ceil(static_cast<double>(count_) / rows);
    const double first = std::clamp(std::floor(visible.minX() / itemSize_.width), 0.0, columns);
    const double end = std::clamp(std::ceil(visible.maxX() / itemSize_.width), first, columns);
    return {static_cast<int>(first) * rows, std::min(static_cast<int>(end) * rows, count_)};
}

} // namespace tessivo
