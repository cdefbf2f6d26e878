#include "SwipeCells/SwipeCollectionViewCell.h"

namespace tessivo::swipe {

ui::CollectionView* SwipeCollectionViewCell::collectionView() const {
    for (ui::View* view = superview(); view; view = view->superview()) {
        if (auto* const list = dynamic_cast<ui::CollectionView*>(view))
            return list;
    }
    return nullptr;
}

std::optional<int> SwipeCollectionViewCell::indexPath() const {
    const auto* list = collectionView();
    return list ? list->itemFor(*this) : std::nullopt;
}

void SwipeCollectionViewCell::deleteItem(int item) {
    if (auto* const list = collectionView())
        list->deleteItem(item);
}

void SwipeCollectionViewCell::selectItem(int item) {
    if (auto* const list = collectionView())
        list->selectItem(item);
}

void SwipeCollectionViewCell::deselectItem(int item) {
    if (auto* const list = collectionView())
        list->deselectItem(item);
}

std::optional<SwipeActions> SwipeCollectionViewCell::ownersActions(int item, SwipeActionsOrientation side) {
    const auto owner = delegate.lock();
    auto* const list = collectionView();
    return owner && list ? owner->editActions(*list, item, side) : std::nullopt;
}

std::optional<SwipeOptions> SwipeCollectionViewCell::ownersOptions(int item, SwipeActionsOrientation side) {
    const auto owner = delegate.lock();
    auto* const list = collectionView();
    return owner && list ? std::optional(owner->editActionsOptions(*list, item, side)) : std::nullopt;
}

void SwipeCollectionViewCell::tellWillBegin(int item, SwipeActionsOrientation side) {
    const auto owner = delegate.lock();
    if (auto* const list = collectionView(); owner && list)
        owner->willBeginEditing(*list, item, side);
}

void SwipeCollectionViewCell::tellDidEnd(std::optional<int> item, SwipeActionsOrientation side) {
    const auto owner = delegate.lock();
    if (auto* const list = collectionView(); owner && list)
        owner->didEndEditing(*list, item, side);
}

std::optional<ui::Rect> SwipeCollectionViewCell::ownersVisibleRect() {
    const auto owner = delegate.lock();
    auto* const list = collectionView();
    return owner && list ? owner->visibleRect(*list) : std::nullopt;
}

bool SwipeCollectionViewCell::covers(const ui::Rect& frame, ui::Point point) const {
    return frame.contains(point);
}

} // namespace tessivo::swipe
