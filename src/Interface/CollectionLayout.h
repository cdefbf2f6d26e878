#pragma once

#include "Interface/Geometry.h"

#include <vector>

namespace tessivo::ui {

/// A run of items, first to one past the last.
struct ItemRange {
    int begin = 0;
    int end = 0;

    [[nodiscard]] bool contains(int item) const { return item >= begin && item < end; }

    friend bool operator==(const ItemRange&, const ItemRange&) = default;
};

/// Where the items of a collection lie, in the space of its content.
class CollectionLayout {
public:
    virtual ~CollectionLayout() = default;

    /// The room that the window wants kept free at the edges of the content. A layout may have no use for it.
    void setLayoutMargins(Insets margins) { margins_ = margins; }
    [[nodiscard]] Insets layoutMargins() const { return margins_; }

    /// Works out all frames for `count` items of `itemSize` in a collection as large as `bounds`. Called
    /// before any query.
    virtual void prepare(int count, Size itemSize, Size bounds) = 0;
    [[nodiscard]] virtual Size contentSize() const = 0;
    [[nodiscard]] virtual Rect frame(int item) const = 0;
    /// The items to show while `visible` is on the screen.
    [[nodiscard]] virtual ItemRange itemsIn(const Rect& visible) const = 0;

private:
    Insets margins_;
};

/// Items of one size in one column, centred, or in one row from the near edge. Costs nothing per item.
class LineLayout final : public CollectionLayout {
public:
    enum class Axis { Vertical, Horizontal };

    /// `inset` lies before the first and after the last item.
    LineLayout(Axis axis, double spacing, double inset = 0) : axis_(axis), spacing_(spacing), inset_(inset) {}

    void prepare(int count, Size itemSize, Size bounds) override;
    [[nodiscard]] Size contentSize() const override;
    [[nodiscard]] Rect frame(int item) const override;
    [[nodiscard]] ItemRange itemsIn(const Rect& visible) const override;

private:
    [[nodiscard]] double length() const;

    Axis axis_;
    double spacing_;
    double inset_;
    int count_ = 0;
    Size itemSize_;
    Size bounds_;
};

} // namespace tessivo::ui
