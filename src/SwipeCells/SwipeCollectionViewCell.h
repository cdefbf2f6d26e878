#pragma once

#include "Interface/CollectionView.h"
#include "SwipeCells/SwipeListCell.h"

namespace tessivo::swipe {

extern template class SwipeListCell<ui::CollectionView>;

using SwipeCollectionViewCellDelegate = SwipeListDelegate<ui::CollectionView>;

/// A cell of a collection that swipes: its content view is what moves.
class SwipeCollectionViewCell : public SwipeListCell<ui::CollectionView> {
public:
    explicit SwipeCollectionViewCell(SwipeEnvironment environment)
        : SwipeListCell(std::move(environment), Container::ContentView) {}

    /// The collection that holds the cell; null where none does.
    [[nodiscard]] ui::CollectionView* collectionView() const { return list(); }

protected:
    [[nodiscard]] bool covers(const ui::Rect& frame, ui::Point point) const override {
        return frame.contains(point);
    }
};

} // namespace tessivo::swipe
