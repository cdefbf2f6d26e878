#pragma once

#include "Interface/CollectionLayout.h"

#include <memory>
#include <optional>
#include <vector>

namespace tessivo {
class Console;
}

namespace tessivo::unsplash {

/// Supplies a waterfall with the sizes of its items. Held weakly by it.
class WaterfallLayoutDelegate {
public:
    virtual ~WaterfallLayoutDelegate() = default;

    /// Only the aspect ratio counts; zero for an unknown item.
    [[nodiscard]] virtual ui::Size waterfallSizeForItem(int item) = 0;
};

/// Items of any shape in up to three columns of equal width, each item in the column that is shortest when
/// its turn comes, and a footer under all of them. Several columns keep the margins to the left and right
/// free, one column has none.
class WaterfallLayout final : public ui::CollectionLayout {
public:
    explicit WaterfallLayout(Console& console) : console_(console) {}

    static constexpr double pagingViewHeight = 44;

    std::weak_ptr<WaterfallLayoutDelegate> delegate;
    double topInset = 16; ///< from the top to the first row

    void prepare(int count, ui::Size itemSize, ui::Size bounds) override;
    [[nodiscard]] ui::Size contentSize() const override;
    /// An item without a frame stops the program.
    [[nodiscard]] ui::Rect frame(int item) const override;
    /// From the first to the last item that meets the rectangle, with all between them; all items where none
    /// meets it.
    [[nodiscard]] ui::ItemRange itemsIn(const ui::Rect& visible) const override;

    /// The frames of all items; empty where the collection is too narrow for a column.
    [[nodiscard]] const std::vector<ui::Rect>& frames() const { return frames_; }
    /// Where the footer lies; empty without items.
    [[nodiscard]] const std::optional<ui::Rect>& pagingViewFrame() const { return pagingViewFrame_; }
    /// Whether a collection that becomes as large as `bounds` needs other frames.
    [[nodiscard]] bool shouldInvalidateLayout(ui::Size bounds) const { return bounds.width != width_; }

private:
    [[nodiscard]] int rawColumnCount() const;
    [[nodiscard]] double contentWidth() const;
    void place(int count, WaterfallLayoutDelegate& sizes);

    Console& console_;
    double width_ = 0;
    double contentHeight_ = 0;
    std::vector<ui::Rect> frames_;
    std::optional<ui::Rect> pagingViewFrame_;
    /// The largest maxY of the items up to each one: it rises, as the tops of the items do by themselves, so
    /// that the first and the last visible item are found by bisection.
    std::vector<double> lowestEdgeUpTo_;
};

} // namespace tessivo::unsplash
