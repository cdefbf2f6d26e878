#include "SelectValueVC/HalfScreen.h"

#include <utility>

namespace tessivo {
namespace {

constexpr double cornerRadius = 16;

/// `frame`, one height of it further down.
ui::Rect below(ui::Rect frame) {
    frame.y += frame.height;
    return frame;
}

void runAlongside(ui::PropertyAnimator* coordinator, std::function<void()> changes) {
    if (coordinator)
        coordinator->addAnimations(std::move(changes));
    else
        changes();
}

} // namespace

ui::Rect HalfScreenPresentationController::frameOfPresentedViewInContainerView() const {
    if (!container_)
        return {};
    const auto [x, y, width, height] = container_->bounds();
    return {0, height - height / 2, width, height / 2};
}

void HalfScreenPresentationController::presentationTransitionWillBegin(ui::PropertyAnimator* coordinator) {
    const ui::Rect frame = frameOfPresentedViewInContainerView();
    if (container_)
        container_->addSubview(presented_);
    presented_.setCornerRadius(cornerRadius);
    presented_.setClipsToBounds(true);
    presented_.setFrame(below(frame));
    presented_.setAlpha(0);
    runAlongside(coordinator, [&presented = presented_, frame] {
        presented.setFrame(frame);
        presented.setAlpha(1);
    });
}

void HalfScreenPresentationController::dismissalTransitionWillBegin(ui::PropertyAnimator* coordinator) {
    runAlongside(coordinator, [&presented = presented_] {
        presented.setFrame(below(presented.frame()));
        presented.setAlpha(0);
    });
}

void HalfScreenPresentationController::dismissalTransitionDidEnd(bool completed) {
    if (completed)
        presented_.removeFromSuperview();
}

void HalfScreenTransitionAnimator::animateTransition(ui::TransitionContext context) {
    ui::View& moving = isPresentation ? context.to : context.from;
    const ui::Rect frame = moving.frame();
    if (isPresentation) {
        if (context.container)
            context.container->addSubview(moving);
        moving.setFrame(below(frame));
    }
    const auto animator = ui::PropertyAnimator::make(animations_, ui::EaseInOut{transitionDuration});
    animator->addAnimations([&moving, end = isPresentation ? frame : below(frame)] { moving.setFrame(end); });
    animator->addCompletion(
        [complete = std::move(context.completeTransition)](ui::AnimatingPosition) { complete(); });
    animator->startAnimation();
}

std::shared_ptr<ui::AnimatedTransitioning>
HalfScreenTransitioningDelegate::animationControllerForPresented(ui::ViewController&) {
    return std::make_shared<HalfScreenTransitionAnimator>(animations_, true);
}

std::shared_ptr<ui::AnimatedTransitioning>
HalfScreenTransitioningDelegate::animationControllerForDismissed(ui::ViewController&) {
    return std::make_shared<HalfScreenTransitionAnimator>(animations_, false);
}

} // namespace tessivo
