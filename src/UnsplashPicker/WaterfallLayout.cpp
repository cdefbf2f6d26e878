#include "UnsplashPicker/WaterfallLayout.h"

#include "Ports/Console.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <utility>

namespace tessivo::unsplash {
namespace {

constexpr double columnDivisor = 166;
constexpr double widthMargin = 16;
constexpr int maximumColumns = 3;
constexpr double wideSpacing = 16;
constexpr double narrowSpacing = 1;

} // namespace

int WaterfallLayout::rawColumnCount() const {
    return static_cast<int>(std::floor(width_ - widthMargin) / columnDivisor);
}

double WaterfallLayout::contentWidth() const {
    return rawColumnCount() == 1 ? width_ : width_ - layoutMargins().left - layoutMargins().right;
}

void WaterfallLayout::prepare(int count, ui::Size, ui::Size bounds) {
    width_ = bounds.width;
    pagingViewFrame_.reset();
    contentHeight_ = 0;
    const auto sizes = delegate.lock();
    const bool hasColumns = sizes && rawColumnCount() >= 1;
    frames_.resize(hasColumns ? static_cast<std::size_t>(count) : 0);
    lowestEdgeUpTo_.resize(frames_.size());
    if (hasColumns)
        place(count, *sizes);
}

void WaterfallLayout::place(int count, WaterfallLayoutDelegate& sizes) {
    const int raw = rawColumnCount();
    const int columns = std::min(raw, maximumColumns);
    const double spacing = raw == 1 ? narrowSpacing : wideSpacing;
    const double columnWidth =
        raw == 1 ? contentWidth() : (contentWidth() - spacing * (columns - 1)) / columns;
    // A missing column is never the shortest.
    std::array<double, maximumColumns> heights;
    heights.fill(std::numeric_limits<double>::infinity());
    std::fill_n(heights.begin(), columns, topInset);
    std::array<double, maximumColumns> lefts{}; // a single column keeps no margin
    for (int column = 0; columns > 1 && column < columns; ++column)
        lefts[static_cast<std::size_t>(column)] = (columnWidth + spacing) * column + layoutMargins().left;

    const double width = std::floor(columnWidth);
    double lowestEdge = -std::numeric_limits<double>::infinity();
    for (int item = 0; item < count; ++item) {
        const ui::Size size = sizes.waterfallSizeForItem(item);
        const auto column = static_cast<std::size_t>(std::ranges::min_element(heights) - heights.begin());
        const ui::Rect frame{lefts[column], heights[column], width,
                             std::floor(columnWidth * size.height / size.width)};
        heights[column] += frame.height + spacing;
        lowestEdge = std::max(lowestEdge, frame.maxY());
        frames_[static_cast<std::size_t>(item)] = frame;
        lowestEdgeUpTo_[static_cast<std::size_t>(item)] = lowestEdge;
    }
    contentHeight_ = *std::max_element(heights.begin(), heights.begin() + columns);
    if (count > 0) {
        pagingViewFrame_ = ui::Rect{0, contentHeight_, width_, pagingViewHeight};
        contentHeight_ += pagingViewHeight;
    }
    contentHeight_ += spacing;
}

ui::Size WaterfallLayout::contentSize() const {
    return {contentWidth(), contentHeight_};
}

ui::Rect WaterfallLayout::frame(int item) const {
    if (item < 0 || std::cmp_greater_equal(item, frames_.size()))
        console_.stopProgram("An item of the photo grid has no place.");
    return frames_[static_cast<std::size_t>(item)];
}

ui::ItemRange WaterfallLayout::itemsIn(const ui::Rect& visible) const {
    const auto meets = [&](const ui::Rect& frame) { return frame.intersects(visible); };
    // What ends above the rectangle or begins below it cannot meet it.
    const auto above = std::ranges::upper_bound(lowestEdgeUpTo_, visible.minY()) - lowestEdgeUpTo_.begin();
    const auto below = std::ranges::lower_bound(frames_, visible.maxY(), {}, &ui::Rect::y) - frames_.begin();
    const int count = static_cast<int>(frames_.size());
    if (above >= below)
        return {0, count};
    const auto candidatesEnd = frames_.begin() + below;
    const auto first = std::find_if(frames_.begin() + above, candidatesEnd, meets);
    if (first == candidatesEnd)
        return {0, count};
    auto last = candidatesEnd;
    while (!meets(*(last - 1)))
        --last;
    return {static_cast<int>(first - frames_.begin()), static_cast<int>(last - frames_.begin())};
}

} // namespace tessivo::unsplash
