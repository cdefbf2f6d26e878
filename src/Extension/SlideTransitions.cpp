#include "Extension/SlideTransitions.h"

namespace tessivo {
namespace {

constexpr Seconds duration{0.3};

void moveTo(ui::View& view, double x) {
    ui::Rect frame = view.frame();
    frame.x = x;
    view.setFrame(frame);
}

/// Moves both screens by one width to `target`'s place; which way is in where they start.
void slide(ui::Animations& animations, std::shared_ptr<ui::PropertyAnimator>& animator,
           ui::TransitionContext& context, double incomingStart, double outgoingEnd) {
    const double place = context.from.frame().x;
    moveTo(context.to, place + incomingStart);
    animator = ui::PropertyAnimator::make(animations, ui::EaseInOut{duration});
    animator->addAnimations([&to = context.to, &from = context.from, place, outgoingEnd] {
        moveTo(to, place);
        moveTo(from, place + outgoingEnd);
    });
    animator->addCompletion([complete = context.completeTransition](ui::AnimatingPosition) { complete(); });
    animator->startAnimation();
}

} // namespace

void PresentTransition::animateTransition(ui::TransitionContext context) {
    const double width = context.from.frame().width;
    slide(animations_, animator, context, width, -width);
}

void DismissTransition::animateTransition(ui::TransitionContext context) {
    const double width = context.from.frame().width;
    slide(animations_, animator, context, -width, width);
}

std::shared_ptr<ui::AnimatedTransitioning>
SlideTransitions::animationControllerForPresented(ui::ViewController&) {
    return std::make_shared<PresentTransition>(animations_);
}

std::shared_ptr<ui::AnimatedTransitioning>
SlideTransitions::animationControllerForDismissed(ui::ViewController&) {
    return std::make_shared<DismissTransition>(animations_);
}

} // namespace tessivo
