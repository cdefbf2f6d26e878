#pragma once

#include "Interface/TableView.h"
#include "SwipeCells/SwipeListCell.h"

namespace tessivo::swipe {

extern template class SwipeListCell<ui::TableView>;

using SwipeTableViewCellDelegate = SwipeListDelegate<ui::TableView>;

/// A cell of a table that swipes: the cell itself is what moves, so that its place across counts for no
/// touch.
class SwipeTableViewCell : public SwipeListCell<ui::TableView> {
public:
    explicit SwipeTableViewCell(SwipeEnvironment environment)
        : SwipeListCell(std::move(environment), Container::Cell) {}

    /// The table that holds the cell; null where none does.
    [[nodiscard]] ui::TableView* tableView() const { return list(); }

protected:
    [[nodiscard]] bool covers(const ui::Rect& frame, ui::Point point) const override {
        return point.y > frame.minY() && point.y < frame.maxY();
    }
};

} // namespace tessivo::swipe
