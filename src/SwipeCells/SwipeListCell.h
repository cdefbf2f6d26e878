#pragma once

#include "SwipeCells/SwipeCell.h"

namespace tessivo::swipe {

/// The owner of a list whose cells swipe. Held weakly by the cells. Main thread.
template <class List>
class SwipeListDelegate {
public:
    virtual ~SwipeListDelegate() = default;

    /// In order from the far edge to the cell. Nothing, or no actions: the item does not swipe to that side.
    [[nodiscard]] virtual std::optional<SwipeActions> editActions(List&, int item,
                                                                  SwipeActionsOrientation) = 0;
    [[nodiscard]] virtual SwipeOptions editActionsOptions(List&, int /*item*/, SwipeActionsOrientation) {
        return {};
    }
    /// The item is swiped, by a finger or by the program.
    virtual void willBeginEditing(List&, int /*item*/, SwipeActionsOrientation) {}
    /// The item's cell goes back to its place, or has been filled. Without an item where the list has none
    /// for the cell any more.
    virtual void didEndEditing(List&, std::optional<int> /*item*/, SwipeActionsOrientation) {}
    /// The part of the list that the user sees, in its own space; empty for no say.
    [[nodiscard]] virtual std::optional<ui::Rect> visibleRect(List&) { return std::nullopt; }
};

/// What a cell that swipes asks of its list, and of the list's owner.
template <class List>
class SwipeListCell : public SwipeCell {
public:
    std::weak_ptr<SwipeListDelegate<List>> delegate;

    [[nodiscard]] std::optional<int> indexPath() const final;

protected:
    using SwipeCell::SwipeCell;

    /// The list that holds the cell; null where none does.
    [[nodiscard]] List* list() const final;
    void deleteItem(int item) final;
    void selectItem(int item) final;
    void deselectItem(int item) final;
    [[nodiscard]] std::optional<SwipeActions> ownersActions(int item, SwipeActionsOrientation side) final;
    [[nodiscard]] std::optional<SwipeOptions> ownersOptions(int item, SwipeActionsOrientation side) final;
    void tellWillBegin(int item, SwipeActionsOrientation side) final;
    void tellDidEnd(std::optional<int> item, SwipeActionsOrientation side) final;
    [[nodiscard]] std::optional<ui::Rect> ownersVisibleRect() final;
};

} // namespace tessivo::swipe
