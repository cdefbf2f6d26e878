#include "SwipeCells/SwipeController.h"

#include "Interface/ScrollView.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

namespace tessivo::swipe {
namespace {

using ui::GestureState;

constexpr double settleDamping = 1;

ui::Spring settleSpring(double velocity) {
    return {.mass = 1, .stiffness = 100, .damping = 18, .initialVelocity = velocity};
}

} // namespace

std::shared_ptr<SwipeController> SwipeController::make(SwipeEnvironment environment, Swipeable& swipeable,
                                                       ui::View& container,
                                                       SwipeControllerDelegate& delegate) {
    std::shared_ptr<SwipeController> made(
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
Swipeable* SwipeController::firstCell(bool (*condition)(const Swipeable&)) const {
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
    const auto alive = shared_from_this();
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

double SwipeController::targetCenter(bool active) const {
    if (!swipeable_)
        return 0;
    const double middle = cell().bounds().midX();
    const auto* actionsView = swipeable_->actionsView();
    if (!active || !actionsView)
        return middle;
    return middle - actionsView->naturalRowWidth() * offsetSign(actionsView->orientation());
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

bool SwipeController::isFilling() const {
    const auto* actionsView = swipeable_->actionsView();
    const auto carrier = actionsView ? actionsView->expansionCarrier() : nullptr;
    return deletionMask_ || (carrier && carrier->completionHandler);
}

bool SwipeController::holdStill() {
    if (!swipeable_ || !swipeable_->actionsView() || !isSettling() || isFilling())
        return false;
    stopAnimator();
    giveVisibleWidth();
    heldStill_ = true;
    return true;
}

void SwipeController::moveOn() {
    if (!std::exchange(heldStill_, false) || !swipeable_ || !swipeable_->actionsView() || isSettling())
        return;
    if (isOpen(swipeable_->state()))
        animateTo(targetCenter(true), settleDuration, 0, {});
    else if (swipeable_->state() != SwipeState::Dragging)
        goBack({});
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
        animator_->addCompletion([completion = std::move(completion)](ui::AnimatingPosition position) {
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
    actionsView.setFrame({x, y, 2 * size.width, size.height});
    actionsView.layoutIfNeeded();
}

void SwipeController::hideSwipe(bool animated, Completion completion) {
    if (!swipeable_ || !isOpen(swipeable_->state()) || !swipeable_->actionsView())
        return;
    const auto orientation = swipeable_->actionsView()->orientation();
    swipeable_->setState(SwipeState::AnimatingToCenter);
    if (animated) {
        goBack(std::move(completion));
    } else {
        stopAnimator(); // without its row nothing would bring the cell back from where a touch stops it
        moveTo(targetCenter(false));
        reset();
    }
    if (delegate_)
        delegate_->didEndEditing(*this, orientation);
}

void SwipeController::goBack(Completion completion) {
    animateTo(targetCenter(false), settleDuration, 0,
              [weak = weak_from_this(), completion = std::move(completion)](bool finished) {
                  if (const auto controller = weak.lock())
                      controller->reset();
                  if (completion)
                      completion(finished);
              });
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
        if (!swipeable_ || !swipeable_->actionsView())
            return;
        swipeable_->setState(open);
    }
    const double distance = std::abs(offset);
    const double reach = std::copysign(std::min(cell().bounds().width, distance), offset);
    const double target =
        distance == std::numeric_limits<double>::max() ? targetCenter(true) : cell().bounds().midX() + reach;
    if (animated) {
        animateTo(target, settleDuration, 0, std::move(completion));
    } else {
        stopAnimator(); // what has been under way would end in its own place
        moveTo(target);
    }
}

void SwipeController::reset() {
    if (!swipeable_)
        return;
    swipeable_->setState(SwipeState::Center);
    swipeable_->setActionsView(nullptr);
}

void SwipeController::abandon() {
    stopAnimator();
    reset();
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

} // namespace tessivo::swipe
