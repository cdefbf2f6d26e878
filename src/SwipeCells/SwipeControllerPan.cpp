#include "SwipeCells/SwipeController.h"

#include "Interface/ScrollView.h"

#include <cmath>

namespace tessivo::swipe {
namespace {

using ui::GestureState;

constexpr double elasticScrollRatio = 0.4;

} // namespace

void SwipeController::handlePan() {
    if (!swipeable_)
        return;
    const double velocity = panGestureRecognizer_->velocity().x;
    const auto towards = velocity > 0 ? SwipeActionsOrientation::Left : SwipeActionsOrientation::Right;
    if (delegate_ && !delegate_->canBeginEditing(*this, towards))
        return;
    switch (panGestureRecognizer_->state()) {
    case GestureState::Began:
        return panBegan(velocity);
    case GestureState::Changed:
        return panChanged();
    case GestureState::Ended:
    case GestureState::Cancelled:
    case GestureState::Failed:
        return panReleased(velocity);
    case GestureState::Possible:
        return;
    }
}

void SwipeController::panBegan(double velocity) {
    const auto* dragged =
        firstCell([](const Swipeable& other) { return other.state() == SwipeState::Dragging; });
    ignoresPan_ = dragged && dragged != swipeable_;
    if (ignoresPan_)
        return;
    stopAnimator();
    originalCenter_ = actionsContainerView_->center().x;
    const SwipeState state = swipeable_->state();
    if (state == SwipeState::Center || state == SwipeState::AnimatingToCenter)
        showActionsView(velocity > 0 ? SwipeActionsOrientation::Left : SwipeActionsOrientation::Right);
}

/// A cell on its way back, though held by a finger, leaves the list to another that is open or dragged.
bool SwipeController::givesWay() const {
    if (swipeable_->state() == SwipeState::Dragging || isOpen(swipeable_->state()))
        return false;
    const auto* active = firstCell([](const Swipeable& other) {
        return other.state() == SwipeState::Dragging || isOpen(other.state());
    });
    return active && active != swipeable_;
}

void SwipeController::panChanged() {
    auto* const actionsView = swipeable_->actionsView();
    if (ignoresPan_ || !actionsView || !isOffCenter(swipeable_->state()))
        return;
    if (givesWay())
        return;
    // The finger takes the cell out of a hide, whose end would leave it here without its row.
    if (swipeable_->state() == SwipeState::AnimatingToCenter)
        stopAnimator();
    const auto& pan = *panGestureRecognizer_;
    const double translation = pan.translation().x;
    scrollRatio_ = 1;
    const double offset = translation + originalCenter_ - cell().bounds().midX();
    if (offset * offsetSign(actionsView->orientation()) > 0) {
        moveTo(elasticTranslation(pan, originalCenter_, 0));
        scrollRatio_ = elasticScrollRatio;
        return;
    }
    if (actionsView->options().expansionStyle && scrollView_) {
        stretch(*actionsView->options().expansionStyle, offset);
        return;
    }
    moveTo(elasticTranslation(pan, originalCenter_, actionsView->naturalRowWidth(), elasticScrollRatio));
    if ((actionsContainerView_->center().x - originalCenter_) / translation != 1.0)
        scrollRatio_ = elasticScrollRatio;
}

void SwipeController::stretch(const SwipeExpansionStyle& style, double offset) {
    auto& actionsView = *swipeable_->actionsView();
    auto& pan = *panGestureRecognizer_;
    std::optional<ui::Rect> reference;
    if (actionsContainerView_ != &cell())
        reference = actionsContainerView_->frame();
    const bool expanded = style.isPastExpansionPoint(*swipeable_, pan, *scrollView_, reference);
    const double target = style.stopOffset(*swipeable_);
    if (expanded && !actionsView.expanded() && target > std::abs(offset)) {
        const double centerX = cell().bounds().midX() - target * offsetSign(actionsView.orientation());
        animateTo(centerX, settleDuration, 0, {});
        pan.setTranslation({centerX - originalCenter_, 0});
    } else {
        moveTo(elasticTranslation(pan, originalCenter_, target, style.targetOverscrollElasticity));
    }
    actionsView.setExpanded(expanded, true);
}

void SwipeController::panReleased(double velocity) {
    auto* const actionsView = swipeable_->actionsView();
    if (ignoresPan_ || !actionsView)
        return;
    if (swipeable_->state() == SwipeState::Center &&
        cell().bounds().midX() == actionsContainerView_->center().x)
        return;
    if (givesWay()) {
        goBack({});
        return;
    }
    const auto orientation = actionsView->orientation();
    swipeable_->setState(targetState(velocity));
    const auto carrier = actionsView->expansionCarrier();
    if (actionsView->expanded() && carrier) {
        perform(carrier);
        return;
    }
    const bool active = isOffCenter(swipeable_->state());
    const double target = targetCenter(active);
    const double normalised = velocity * scrollRatio_ / (target - actionsContainerView_->center().x);
    animateTo(target, settleDuration, normalised, [weak = weak_from_this()](bool) {
        const auto controller = weak.lock();
        if (controller && controller->swipeable_ && controller->swipeable_->state() == SwipeState::Center)
            controller->reset();
    });
    if (!active && delegate_)
        delegate_->didEndEditing(*this, orientation);
}

double SwipeController::elasticTranslation(const ui::PanGestureRecognizer& gesture, double originalCenter,
                                           double limit, double ratio) {
    const double translation = gesture.translation().x;
    if (!gesture.view())
        return translation;
    const double moved = originalCenter + translation;
    const double middle = gesture.view()->bounds().midX();
    const double distance = std::abs(moved - middle);
    if (distance <= limit)
        return moved;
    const double held = (1 - ratio) * (distance - limit);
    return moved >= middle ? moved - held : moved + held;
}

SwipeState SwipeController::targetState(double velocity) const {
    const auto* actionsView = swipeable_->actionsView();
    if (!actionsView)
        return SwipeState::Center;
    const bool back =
        actionsView->orientation() == SwipeActionsOrientation::Left ? velocity < 0 : velocity > 0;
    return back && !actionsView->expanded() ? SwipeState::Center : stateOf(actionsView->orientation());
}

} // namespace tessivo::swipe
