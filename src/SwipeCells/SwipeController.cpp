#include "SwipeCells/SwipeController.h"

#include "Interface/ScrollView.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

namespace tessivo::swipe {
namespace {

using ui::GestureState;

constexpr double elasticScrollRatio = 0.4;
constexpr Seconds settleDuration{0.7};
constexpr Seconds fillDuration{0.3};
constexpr double settleDamping = 1;

ui::Spring settleSpring(double velocity) {
    return {.mass = 1, .stiffness = 100, .damping = 18, .initialVelocity = velocity};
}

} // namespace

std::shared_ptr<SwipeController> SwipeController::make(SwipeEnvironment environment, Swipeable& swipeable,
                                                       ui::View& container,
                                                       SwipeControllerDelegate& delegate) {
    const std::shared_ptr<SwipeController> made(
        new SwipeController(std::move(environment), swipeable, container, delegate));
    const auto to = [&](void (SwipeController::*handle)()) {
        return [weak = std::weak_ptr(made), handle](ui::GestureRecognizer&) {
            if (const auto controller = weak.lock())
                (controller.get()->*handle)();
        };
    };
    made->tapGestureRecognizer_->addTarget(made.get(), to(&SwipeController::handleTap));
    made->panGestureRecognizer_->addTarget(made.get(), to(&SwipeController::handlePan));
    made->tapGestureRecognizer_->delegate = made;
    made->panGestureRecognizer_->delegate = made;
    ui::View& cell = swipeable.swipedView();
    cell.addGestureRecognizer(made->tapGestureRecognizer_);
    cell.addGestureRecognizer(made->panGestureRecognizer_);
    return made;
}

SwipeController::SwipeController(SwipeEnvironment environment, Swipeable& swipeable, ui::View& container,
                                 SwipeControllerDelegate& delegate)
    : environment_(std::move(environment)),
      swipeable_(&swipeable),
      actionsContainerView_(&container),
      delegate_(&delegate) {}

void SwipeController::letGo() {
    if (actionsContainerView_ && deletionMask_)
        actionsContainerView_->setMask(nullptr);
    swipeable_ = nullptr;
    actionsContainerView_ = nullptr;
    delegate_ = nullptr;
    scrollView_ = nullptr;
    stopAnimator();
}

/// The first cell of the list, by item, for which `condition` holds.
template <class Condition>
Swipeable* SwipeController::firstCell(Condition condition) const {
    if (!scrollView_)
        return nullptr;
    Swipeable* first = nullptr;
    for (ui::View* view : scrollView_->subviews()) {
        auto* const other = dynamic_cast<Swipeable*>(view);
        if (other && other->indexPath() && condition(*other) &&
            (!first || other->indexPath() < first->indexPath()))
            first = other;
    }
    return first;
}

void SwipeController::hideCells(const Swipeable* except) {
    if (!scrollView_)
        return;
    const auto views = scrollView_->subviews(); // owners may change the list as they hear of it
    for (ui::View* view : views) {
        if (!scrollView_ || std::ranges::find(scrollView_->subviews(), view) == scrollView_->subviews().end())
            continue;
        auto* const other = dynamic_cast<Swipeable*>(view);
        if (other && other != except && other->indexPath())
            other->hideSwipe(true);
    }
}

bool SwipeController::gestureRecognizerShouldBegin(ui::GestureRecognizer& recognizer) {
    if (&recognizer == tapGestureRecognizer_.get()) {
        if (environment_.screenReaderRuns())
            hideCells(nullptr);
        return firstCell([](const Swipeable& other) {
                   const auto pan = other.panGestureRecognizer().state();
                   return isOffCenter(other.state()) || pan == GestureState::Began ||
                          pan == GestureState::Changed || pan == GestureState::Ended;
               }) != nullptr;
    }
    const auto* pan = dynamic_cast<ui::PanGestureRecognizer*>(&recognizer);
    if (!pan || !pan->view())
        return true;
    return std::abs(pan->translation().y) <= std::abs(pan->translation().x);
}

void SwipeController::handleTap() {
    hideSwipe(true);
}

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

/// A cell on its way back leaves the list to another one that is open or under a finger.
bool SwipeController::givesWay() const {
    if (swipeable_->state() != SwipeState::AnimatingToCenter)
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
    const auto orientation = actionsView->orientation();
    swipeable_->setState(givesWay() ? SwipeState::Center : targetState(velocity));
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

double SwipeController::targetCenter(bool active) const {
    if (!swipeable_)
        return 0;
    const double middle = cell().bounds().midX();
    const auto* actionsView = swipeable_->actionsView();
    if (!active || !actionsView)
        return middle;
    return middle - actionsView->naturalRowWidth() * offsetSign(actionsView->orientation());
}

SwipeState SwipeController::targetState(double velocity) const {
    const auto* actionsView = swipeable_->actionsView();
    if (!actionsView)
        return SwipeState::Center;
    const bool back =
        actionsView->orientation() == SwipeActionsOrientation::Left ? velocity < 0 : velocity > 0;
    return back && !actionsView->expanded() ? SwipeState::Center : stateOf(actionsView->orientation());
}

void SwipeController::moveTo(double centerX) {
    actionsContainerView_->setCenterX(centerX);
    giveVisibleWidth();
}

void SwipeController::giveVisibleWidth() {
    if (auto* const actionsView = swipeable_->actionsView())
        actionsView->setVisibleWidth(std::abs(actionsContainerView_->frame().minX()));
}

void SwipeController::stopAnimator() {
    if (animator_ && animator_->isRunning())
        animator_->stopAnimation(true);
}

void SwipeController::animateTo(double centerX, Seconds duration, double velocity, Completion completion) {
    stopAnimator();
    cell().layoutIfNeeded();
    const ui::Timing timing = velocity == 0 ? ui::Timing(ui::DampedOver{duration, settleDamping})
                                            : ui::Timing(settleSpring(velocity));
    animator_ = SwipeAnimator::make(environment_.animations, timing);
    animator_->addAnimations([weak = weak_from_this(), centerX] {
        const auto controller = weak.lock();
        if (!controller || !controller->swipeable_)
            return;
        controller->moveTo(centerX);
        controller->cell().layoutIfNeeded();
    });
    if (completion) {
        animator_->addCompletion([completion](ui::AnimatingPosition position) {
            completion(position == ui::AnimatingPosition::End);
        });
    }
    animator_->startAnimation();
}

bool SwipeController::showActionsView(SwipeActionsOrientation orientation) {
    if (!delegate_)
        return false;
    auto actions = delegate_->editActions(*this, orientation);
    if (!actions || actions->empty())
        return false;
    originalLayoutMargins_ = swipeable_->swipeLayoutMargins();
    configureActionsView(std::move(*actions), orientation);
    delegate_->willBeginEditing(*this, orientation);
    return true;
}

void SwipeController::configureActionsView(SwipeActions actions, SwipeActionsOrientation orientation) {
    auto options = delegate_->editActionsOptions(*this, orientation).value_or(SwipeOptions{});
    swipeable_->setActionsView(nullptr);
    std::optional<ui::Rect> visible;
    if (scrollView_)
        visible = delegate_->visibleRect(*this, *scrollView_);
    auto view =
        std::make_shared<SwipeActionsView>(environment_, insetsFor(visible), cell().bounds().size(),
                                           scrollView_, std::move(options), orientation, std::move(actions));
    view->delegate = weak_from_this();
    actionsContainerView_->addSubview(*view);
    swipeable_->setActionsView(std::move(view));
    layoutActionsView();
    swipeable_->setState(SwipeState::Dragging);
}

/// The parts of the cell that the list's bars cover, so that the buttons stand in the part that is seen.
ui::Insets SwipeController::insetsFor(const std::optional<ui::Rect>& visible) const {
    const ui::Rect frame = cell().frame();
    if (!visible || !frame.intersects(*visible))
        return {};
    const double top = std::max(0.0, visible->minY() - frame.minY());
    const double bottom = std::max(0.0, frame.height - frame.intersection(*visible).height - top);
    return {top, 0, bottom, 0};
}

void SwipeController::layoutActionsView() {
    if (!swipeable_ || !swipeable_->actionsView())
        return;
    auto& actionsView = *swipeable_->actionsView();
    const ui::Size size = cell().bounds().size();
    const bool left = actionsView.orientation() == SwipeActionsOrientation::Left;
    const double x = left ? -2 * size.width : actionsContainerView_->bounds().width;
    const double y = actionsContainerView_ == &cell() ? 0 : -actionsContainerView_->frame().minY();
    const ui::Rect frame{x, y, 2 * size.width, size.height};
    if (actionsView.frame() == frame)
        return;
    actionsView.setFrame(frame);
    actionsView.layoutIfNeeded();
}

void SwipeController::hideSwipe(bool animated, Completion completion) {
    if (!swipeable_ || !isOpen(swipeable_->state()) || !swipeable_->actionsView())
        return;
    const auto orientation = swipeable_->actionsView()->orientation();
    swipeable_->setState(SwipeState::AnimatingToCenter);
    const double target = targetCenter(false);
    if (animated) {
        animateTo(target, settleDuration, 0, [weak = weak_from_this(), completion](bool finished) {
            if (const auto controller = weak.lock())
                controller->reset();
            if (completion)
                completion(finished);
        });
    } else {
        moveTo(target);
        reset();
    }
    if (delegate_)
        delegate_->didEndEditing(*this, orientation);
}

void SwipeController::setSwipeOffset(double offset, bool animated, Completion completion) {
    if (!swipeable_)
        return;
    if (offset == 0) {
        hideSwipe(animated, std::move(completion));
        return;
    }
    const auto orientation = offset > 0 ? SwipeActionsOrientation::Left : SwipeActionsOrientation::Right;
    const auto open = stateOf(orientation);
    if (swipeable_->state() != open) {
        if (!showActionsView(orientation))
            return;
        hideCells(swipeable_);
        swipeable_->setState(open);
    }
    const double distance = std::abs(offset);
    const double reach = std::copysign(std::min(cell().bounds().width, distance), offset);
    const double target =
        distance == std::numeric_limits<double>::max() ? targetCenter(true) : cell().bounds().midX() + reach;
    if (animated)
        animateTo(target, settleDuration, 0, std::move(completion));
    else
        moveTo(target);
}

void SwipeController::reset() {
    if (!swipeable_)
        return;
    swipeable_->setState(SwipeState::Center);
    swipeable_->setActionsView(nullptr);
}

void SwipeController::resetPosition() {
    moveTo(cell().bounds().midX());
}

void SwipeController::traitsDidChange() {
    if (!swipeable_ || !isOpen(swipeable_->state()))
        return;
    moveTo(targetCenter(true));
    cell().layoutIfNeeded();
}

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
    else
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
    const auto finish = [weak = weak_from_this(), actionsView](bool) {
        const auto controller = weak.lock();
        if (!controller || !controller->swipeable_)
            return;
        controller->actionsContainerView_->setMask(nullptr);
        controller->deletionMask_.reset();
        // The list may have given the cell to another item meanwhile.
        if (controller->swipeable_->actionsView() != actionsView)
            return;
        controller->resetPosition();
        controller->reset();
    };
    if (delegate_)
        delegate_->didDelete(*this, indexPath);
    if (!swipeable_ || swipeable_->actionsView() != actionsView) {
        finish(true);
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
    animator->addCompletion([finish](ui::AnimatingPosition) { finish(true); });
    animator->startAnimation();
}

} // namespace tessivo::swipe
