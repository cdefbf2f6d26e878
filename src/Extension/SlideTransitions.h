#pragma once

#include "Interface/Animation.h"
#include "Interface/Transitioning.h"

namespace tessivo {

/// Slides a screen in from the right while the one below leaves to the left.
class PresentTransition final : public ui::AnimatedTransitioning {
public:
    explicit PresentTransition(ui::Animations& animations) : animations_(animations) {}
    void animateTransition(ui::TransitionContext context) override;

private:
    ui::Animations& animations_;
    std::shared_ptr<ui::PropertyAnimator> animator;
};

/// Slides a screen out to the right while the one below comes back from the left.
class DismissTransition final : public ui::AnimatedTransitioning {
public:
    explicit DismissTransition(ui::Animations& animations) : animations_(animations) {}
    void animateTransition(ui::TransitionContext context) override;

private:
    ui::Animations& animations_;
    std::shared_ptr<ui::PropertyAnimator> animator;
};

/// What every screen adopts that shows others by the slide.
class SlideTransitions : public ui::TransitioningDelegate {
public:
    explicit SlideTransitions(ui::Animations& animations) : animations_(animations) {}

    [[nodiscard]] std::shared_ptr<ui::AnimatedTransitioning>
    animationControllerForPresented(ui::ViewController& presented) override;
    [[nodiscard]] std::shared_ptr<ui::AnimatedTransitioning>
    animationControllerForDismissed(ui::ViewController& dismissed) override;

private:
    ui::Animations& animations_;
};

} // namespace tessivo
