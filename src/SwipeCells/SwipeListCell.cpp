#include "SwipeCells/SwipeListCell.h"

#include "Interface/CollectionView.h"
#include "Interface/TableView.h"

namespace tessivo::swipe {

template <class List>
List* SwipeListCell<List>::list() const {
    for (ui::View* view = superview(); view; view = view->superview()) {
        if (auto* const list = dynamic_cast<List*>(view))
            return list;
    }
    return nullptr;
}

template <class List>
std::optional<int> SwipeListCell<List>::indexPath() const {
    const auto* holder = list();
    return holder ? holder->itemFor(*this) : std::nullopt;
}

template <class List>
void SwipeListCell<List>::deleteItem(int item) {
    if (auto* const holder = list())
        holder->deleteItem(item);
}

template <class List>
void SwipeListCell<List>::selectItem(int item) {
    if (auto* const holder = list())
        holder->selectItem(item);
}

template <class List>
void SwipeListCell<List>::deselectItem(int item) {
    if (auto* const holder = list())
        holder->deselectItem(item);
}

template <class List>
std::optional<SwipeActions> SwipeListCell<List>::ownersActions(int item, SwipeActionsOrientation side) {
    const auto owner = delegate.lock();
    auto* const holder = list();
    return owner && holder ? owner->editActions(*holder, item, side) : std::nullopt;
}

template <class List>
std::optional<SwipeOptions> SwipeListCell<List>::ownersOptions(int item, SwipeActionsOrientation side) {
    const auto owner = delegate.lock();
    auto* const holder = list();
    return owner && holder ? std::optional(owner->editActionsOptions(*holder, item, side)) : std::nullopt;
}

template <class List>
void SwipeListCell<List>::tellWillBegin(int item, SwipeActionsOrientation side) {
    const auto owner = delegate.lock();
    if (auto* const holder = list(); owner && holder)
        owner->willBeginEditing(*holder, item, side);
}

template <class List>
void SwipeListCell<List>::tellDidEnd(std::optional<int> item, SwipeActionsOrientation side) {
    const auto owner = delegate.lock();
    if (auto* const holder = list(); owner && holder)
        owner->didEndEditing(*holder, item, side);
}

template <class List>
std::optional<ui::Rect> SwipeListCell<List>::ownersVisibleRect() {
    const auto owner = delegate.lock();
    auto* const holder = list();
    return owner && holder ? owner->visibleRect(*holder) : std::nullopt;
}

template class SwipeListCell<ui::CollectionView>;
template class SwipeListCell<ui::TableView>;

} // namespace tessivo::swipe
