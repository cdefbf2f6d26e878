#include "SwipeCells/SwipeCell.h"

#include "Interface/ScrollView.h"

#include <algorithm>
#include <limits>
#include <utility>

namespace tessivo::swipe {

SwipeCell::SwipeCell(SwipeEnvironment environment, Container container)
    : environment_(environment), container_(container) {
    controller_ = SwipeController::make(std::move(environment), *this, this->container(), *this);
}

SwipeCell::~SwipeCell() {
    leaveList();
    controller_->letGo();
}

void SwipeCell::setActionsView(std::shared_ptr<SwipeActionsView> view) {
    if (actionsView_)
        actionsView_->removeFromSuperview();
    actionsView_ = std::move(view);
}

void SwipeCell::showSwipe(SwipeActionsOrientation orientation, bool animated,
                          SwipeController::Completion completion) {
    setSwipeOffset(-offsetSign(orientation) * std::numeric_limits<double>::max(), animated,
                   std::move(completion));
}

ui::Insets SwipeCell::layoutMargins() const {
    return frame().x == 0 ? layoutMargins_ : controller_->originalLayoutMargins();
}

void SwipeCell::place(const ui::Rect& frame) {
    ui::Rect given = frame;
    if (isOffCenter(state_))
        given.x = this->frame().x;
    setFrame(given);
    // A reused cell's content may still stand beside it.
    setNeedsLayout();
}

void SwipeCell::layoutSubviews() {
    if (container_ == Container::Cell || !actionsView_) {
        CollectionViewCell::layoutSubviews();
    } else {
        const ui::Rect present = contentView.frame();
        if (present.size() != bounds().size())
            contentView.setFrame({present.x, 0, bounds().width, bounds().height});
    }
    controller_->layoutActionsView();
    if (std::exchange(laidOutSize_, bounds().size()) != bounds().size())
        controller_->traitsDidChange();
}

void SwipeCell::didMoveToSuperview() {
    leaveList();
    auto* const scroll = list();
    controller_->setScrollView(scroll);
    if (!scroll)
        return;
    listPan_ = scroll->panGestureRecognizer();
    scroll->panGestureRecognizer()->addTarget(this, [this](ui::GestureRecognizer& pan) {
        if (pan.state() == ui::GestureState::Began)
            hideSwipe(true);
    });
    listClosings_ = scroll->onCloseOpenCells([this] { hideSwipe(true); });
}

void SwipeCell::leaveList() {
    if (const auto pan = listPan_.lock())
        pan->removeTarget(this);
    listPan_.reset();
    listClosings_.end();
}

void SwipeCell::setHighlighted(bool highlighted) {
    if (state_ == SwipeState::Center)
        CollectionViewCell::setHighlighted(highlighted);
}

ui::View* SwipeCell::hitTest(ui::Point point) {
    if (actionsView_ && !isHidden()) {
        if (auto* const hit = actionsView_->hitTest(convertTo(*actionsView_, point)))
            return hit;
    }
    return CollectionViewCell::hitTest(point);
}

bool SwipeCell::pointInside(ui::Point point) {
    if (!superview())
        return false;
    const ui::Point inList = convertTo(*superview(), point);
    const auto* scroll = list();
    if (scroll && !environment_.screenReaderRuns()) {
        bool beside = false;
        for (ui::View* view : scroll->subviews()) {
            const auto* other = dynamic_cast<SwipeCell*>(view);
            beside |= other && other != this && isOpen(other->state()) && other->indexPath() &&
                      !covers(other->frame(), inList);
        }
        if (beside) {
            controller_->hideCells(nullptr);
            return false;
        }
    }
    return covers(frame(), inList);
}

void SwipeCell::leaveRow() {
    contentView.setClipsToBounds(false);
    controller_->abandon();
    auto* const scroll = list();
    if (!scroll)
        return;
    for (const auto& recognizer : scroll->gestureRecognizers()) {
        if (recognizer != scroll->panGestureRecognizer())
            recognizer->setEnabled(true);
    }
}

void SwipeCell::prepareForReuse() {
    CollectionViewCell::prepareForReuse();
    leaveRow();
    selectAgain();
    isPreviouslySelected_ = false;
}

void SwipeCell::willLeaveWindow() {
    leaveRow();
    isPreviouslySelected_ = false;
}

void SwipeCell::selectAgain() {
    const auto item = indexPath();
    if (isPreviouslySelected_ && item)
        selectItem(*item);
}

std::optional<SwipeActions> SwipeCell::editActions(SwipeController&, SwipeActionsOrientation side) {
    const auto item = indexPath();
    return item ? ownersActions(*item, side) : std::nullopt;
}

std::optional<SwipeOptions> SwipeCell::editActionsOptions(SwipeController&, SwipeActionsOrientation side) {
    const auto item = indexPath();
    return item ? ownersOptions(*item, side) : std::nullopt;
}

void SwipeCell::willBeginEditing(SwipeController&, SwipeActionsOrientation side) {
    CollectionViewCell::setHighlighted(false);
    isPreviouslySelected_ = isSelected();
    const auto item = indexPath();
    if (!item)
        return;
    deselectItem(*item);
    tellWillBegin(*item, side);
}

void SwipeCell::didEndEditing(SwipeController&, SwipeActionsOrientation side) {
    if (actionsView_)
        selectAgain();
    isPreviouslySelected_ = false;
    tellDidEnd(indexPath(), side);
}

void SwipeCell::didDelete(SwipeController&, int indexPath) {
    deleteItem(indexPath);
}

std::optional<ui::Rect> SwipeCell::visibleRect(SwipeController&, ui::ScrollView&) {
    return ownersVisibleRect();
}

SwipeActionsView* SwipeCell::accessibilityElement() const {
    return isOffCenter(state_) ? actionsView_.get() : nullptr;
}

std::vector<SwipeAccessibilityCustomAction> SwipeCell::accessibilityCustomActions() {
    const auto item = indexPath();
    if (!list() || !item)
        return {};
    auto left = ownersActions(*item, SwipeActionsOrientation::Left).value_or(SwipeActions{});
    auto right = ownersActions(*item, SwipeActionsOrientation::Right).value_or(SwipeActions{});
    std::vector<SwipeAccessibilityCustomAction> all;
    const auto add = [&](const SwipeActions& actions, std::size_t from, std::size_t to) {
        for (std::size_t index = from; index < std::min(to, actions.size()); ++index) {
            const auto& action = actions[index];
            const auto name = action->title ? action->title : action->accessibilityLabel;
            all.push_back({name.value_or("SwipeAction"), action, *item});
        }
    };
    add(right, 0, 1);
    add(left, 0, 1);
    add(right, 1, right.size());
    add(left, 1, left.size());
    return all;
}

std::vector<std::string> SwipeCell::accessibilityActionNames() {
    std::vector<std::string> names;
    for (auto& custom : accessibilityCustomActions())
        names.push_back(std::move(custom.name));
    return names;
}

bool SwipeCell::performAccessibilityAction(const std::string& name) {
    const auto actions = accessibilityCustomActions();
    const auto found = std::ranges::find(actions, name, &SwipeAccessibilityCustomAction::name);
    return found != actions.end() && performAccessibilityCustomAction(*found);
}

bool SwipeCell::performAccessibilityCustomAction(const SwipeAccessibilityCustomAction& custom) {
    if (!list())
        return false;
    if (custom.action->handler)
        custom.action->handler(*custom.action, custom.indexPath);
    if (custom.action->style == SwipeActionStyle::Destructive)
        deleteItem(custom.indexPath);
    return true;
}

} // namespace tessivo::swipe
