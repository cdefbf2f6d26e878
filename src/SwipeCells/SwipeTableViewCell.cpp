#include "SwipeCells/SwipeTableViewCell.h"

namespace tessivo::swipe {

ui::TableView* SwipeTableViewCell::tableView() const {
    for (ui::View* view = superview(); view; view = view->superview()) {
        if (auto* const list = dynamic_cast<ui::TableView*>(view))
            return list;
    }
    return nullptr;
}

std::optional<int> SwipeTableViewCell::indexPath() const {
    const auto* list = tableView();
    return list ? list->itemFor(*this) : std::nullopt;
}

void SwipeTableViewCell::deleteItem(int item) {
    if (auto* const list = tableView())
        list->deleteItem(item);
}

void SwipeTableViewCell::selectItem(int item) {
    if (auto* const list = tableView())
        list->selectItem(item);
}

void SwipeTableViewCell::deselectItem(int item) {
    if (auto* const list = tableView())
        list->deselectItem(item);
}

std::optional<SwipeActions> SwipeTableViewCell::ownersActions(int item, SwipeActionsOrientation side) {
    const auto owner = delegate.lock();
    auto* const list = tableView();
    return owner && list ? owner->editActions(*list, item, side) : std::nullopt;
}

std::optional<SwipeOptions> SwipeTableViewCell::ownersOptions(int item, SwipeActionsOrientation side) {
    const auto owner = delegate.lock();
    auto* const list = tableView();
    return owner && list ? std::optional(owner->editActionsOptions(*list, item, side)) : std::nullopt;
}

void SwipeTableViewCell::tellWillBegin(int item, SwipeActionsOrientation side) {
    const auto owner = delegate.lock();
    if (auto* const list = tableView(); owner && list)
        owner->willBeginEditing(*list, item, side);
}

void SwipeTableViewCell::tellDidEnd(std::optional<int> item, SwipeActionsOrientation side) {
    const auto owner = delegate.lock();
    if (auto* const list = tableView(); owner && list)
        owner->didEndEditing(*list, item, side);
}

std::optional<ui::Rect> SwipeTableViewCell::ownersVisibleRect() {
    const auto owner = delegate.lock();
    auto* const list = tableView();
    return owner && list ? owner->visibleRect(*list) : std::nullopt;
}

bool SwipeTableViewCell::covers(const ui::Rect& frame, ui::Point point) const {
    return point.y > frame.minY() && point.y < frame.maxY();
}

} // namespace tessivo::swipe
