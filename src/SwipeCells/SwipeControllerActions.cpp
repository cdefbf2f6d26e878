#include "SwipeCells/SwipeController.h"

#include <utility>

namespace tessivo::swipe {
namespace {

constexpr Seconds fillDuration{0.3};

} // namespace

void SwipeController::didSelect(SwipeActionsView&, const std::shared_ptr<SwipeAction>& action) {
    perform(action);
}

void SwipeController::perform(const std::shared_ptr<SwipeAction>& action) {
    auto* const actionsView = swipeable_ ? swipeable_->actionsView() : nullptr;
    if (!actionsView)
        return;
    const auto& style = actionsView->options().expansionStyle;
    if (!style || action != actionsView->expansionCarrier()) {
        perform(*action, action->hidesWhenSelected);
        return;
    }
    actionsView->setExpanded(true, false);
    if (const auto* options = std::get_if<SwipeExpansionStyle::FillOptions>(&style->completionAnimation))
        fill(action, *options);
    else
        perform(*action, true);
}

void SwipeController::perform(SwipeAction& action, bool hide) {
    const auto indexPath = swipeable_->indexPath();
    if (!indexPath)
        return;
    if (hide)
        hideSwipe(true);
    if (action.handler)
        action.handler(action, *indexPath);
}

void SwipeController::fill(const std::shared_ptr<SwipeAction>& action,
                           SwipeExpansionStyle::FillOptions options) {
    const auto indexPath = swipeable_->indexPath();
    if (!indexPath)
        return;
    const auto& actionsView = *swipeable_->actionsView();
    const auto orientation = actionsView.orientation();
    const double newCenter =
        cell().bounds().midX() -
        (cell().bounds().width + actionsView.minimumButtonWidth()) * offsetSign(orientation);
    action->completionHandler = [weak = weak_from_this(), weakAction = std::weak_ptr(action), orientation,
                                 indexPath, newCenter, options](ExpansionFulfillmentStyle style) {
        if (const auto ending = weakAction.lock())
            ending->completionHandler = nullptr;
        if (const auto controller = weak.lock())
            controller->fillEnded(orientation, *indexPath, newCenter, style, options.timing);
    };
    const auto invoke = [action, indexPath, options] {
        if (action->handler)
            action->handler(*action, *indexPath);
        if (options.autoFulFillmentStyle)
            action->fulfill(*options.autoFulFillmentStyle);
    };
    const bool after = options.timing == HandlerInvocationTiming::After;
    animateTo(newCenter, fillDuration, 0, [after, invoke](bool) {
        if (after)
            invoke();
    });
    if (!after)
        invoke();
}

void SwipeController::fillEnded(SwipeActionsOrientation orientation, int indexPath, double newCenter,
                                ExpansionFulfillmentStyle style, HandlerInvocationTiming timing) {
    if (!swipeable_)
        return;
    if (delegate_)
        delegate_->didEndEditing(*this, orientation);
    if (style == ExpansionFulfillmentStyle::Reset)
        hideSwipe(true);
    else if (swipeable_)
        removeCell(indexPath, newCenter, timing);
}

void SwipeController::removeCell(int indexPath, double newCenter, HandlerInvocationTiming timing) {
    auto* const actionsView = swipeable_->actionsView();
    if (!actionsView) { // the row was closed before its owner made up their mind
        if (delegate_)
            delegate_->didDelete(*this, indexPath);
        return;
    }
    deletionMask_ = actionsView->makeDeletionMask();
    deletionMask_->setAnimations(&environment_.animations);
    actionsContainerView_->setMask(deletionMask_.get());
    const auto finish = [weak = weak_from_this()] {
        const auto controller = weak.lock();
        if (!controller || !controller->swipeable_)
            return;
        controller->actionsContainerView_->setMask(nullptr);
        controller->deletionMask_.reset();
        controller->resetPosition();
        controller->reset();
    };
    if (delegate_)
        delegate_->didDelete(*this, indexPath);
    if (!swipeable_ || swipeable_->actionsView() != actionsView) {
        finish();
        return;
    }
    const auto animator = SwipeAnimator::make(environment_.animations, ui::EaseInOut{fillDuration});
    animator->addAnimations([weak = weak_from_this(), newCenter, timing] {
        const auto controller = weak.lock();
        if (!controller || !controller->swipeable_)
            return;
        const ui::Rect mask = controller->deletionMask_->frame();
        controller->deletionMask_->setFrame({mask.x, mask.y, mask.width, 0});
        controller->moveTo(newCenter);
        if (timing == HandlerInvocationTiming::After)
            controller->swipeable_->actionsView()->setAlpha(0);
    });
    animator->addCompletion([finish](ui::AnimatingPosition) { finish(); });
    animator->startAnimation();
}

} // namespace tessivo::swipe
