#pragma once

#include "Interface/TableView.h"
#include "SwipeCells/SwipeCell.h"

namespace tessivo::swipe {

/// The owner of a table whose cells swipe. Held weakly by the cells.
class SwipeTableViewCellDelegate {
public:
    virtual ~SwipeTableViewCellDelegate() = default;

    [[nodiscard]] virtual std::optional<SwipeActions> editActions(ui::TableView&, int item,
                                                                  SwipeActionsOrientation) = 0;
    [[nodiscard]] virtual SwipeOptions editActionsOptions(ui::TableView&, int /*item*/,
                                                          SwipeActionsOrientation) {
        return {};
    }
    virtual void willBeginEditing(ui::TableView&, int /*item*/, SwipeActionsOrientation) {}
    /// Without an item where the table has none for the cell any more.
    virtual void didEndEditing(ui::TableView&, std::optional<int> /*item*/, SwipeActionsOrientation) {}
    /// The part of the table that the user sees, in its own space; empty for no say.
    [[nodiscard]] virtual std::optional<ui::Rect> visibleRect(ui::TableView&) { return std::nullopt; }
};

/// A cell of a table that swipes: the cell itself is what moves, so that its place across counts for no
/// touch.
class SwipeTableViewCell : public SwipeCell {
public:
    explicit SwipeTableViewCell(SwipeEnvironment environment)
        : SwipeCell(std::move(environment), Container::Cell) {}

    std::weak_ptr<SwipeTableViewCellDelegate> delegate;

    /// The table that holds the cell; null where none does.
    [[nodiscard]] ui::TableView* tableView() const;
    [[nodiscard]] std::optional<int> indexPath() const override;

protected:
    [[nodiscard]] ui::ScrollView* list() const override { return tableView(); }
    void deleteItem(int item) override;
    void selectItem(int item) override;
    void deselectItem(int item) override;
    [[nodiscard]] std::optional<SwipeActions> ownersActions(int item, SwipeActionsOrientation side) override;
    [[nodiscard]] std::optional<SwipeOptions> ownersOptions(int item, SwipeActionsOrientation side) override;
    void tellWillBegin(int item, SwipeActionsOrientation side) override;
    void tellDidEnd(std::optional<int> item, SwipeActionsOrientation side) override;
    [[nodiscard]] std::optional<ui::Rect> ownersVisibleRect() override;
    [[nodiscard]] bool covers(const ui::Rect& frame, ui::Point point) const override;
};

} // namespace tessivo::swipe
