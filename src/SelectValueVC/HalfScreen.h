#pragma once

#include "Interface/Animation.h"
#include "Interface/Transitioning.h"
#include "Interface/View.h"

namespace tessivo {

/// Places a view in the lower half of its container, and moves it in and out. The view and the container
/// outlive the controller. Main thread.
class HalfScreenPresentationController final {
public:
    /// `container` may be null: then the frame is all zeros and nothing is added.
    HalfScreenPresentationController(ui::View& presented, ui::View* container)
        : presented_(presented), container_(container) {}

    [[nodiscard]] ui::Rect frameOfPresentedViewInContainerView() const;

    // `coordinator` runs the changes alongside the transition; without one they are made at once.
    void presentationTransitionWillBegin(ui::PropertyAnimator* coordinator);
    void dismissalTransitionWillBegin(ui::PropertyAnimator* coordinator);
    /// Takes the view out of the container, unless the dismissal was cancelled.
    void dismissalTransitionDidEnd(bool completed);

private:
    ui::View& presented_;
    ui::View* container_;
};

/// Slides a view up from below its frame, or down again.
class HalfScreenTransitionAnimator final : public ui::AnimatedTransitioning {
public:
    static constexpr Seconds transitionDuration{0.3};

    HalfScreenTransitionAnimator(ui::Animations& animations, bool presents)
        : isPresentation(presents), animations_(animations) {}

    const bool isPresentation;

    void animateTransition(ui::TransitionContext context) override;

private:
    ui::Animations& animations_;
};

/// Presents any screen over the lower half of another.
class HalfScreenTransitioningDelegate final : public ui::TransitioningDelegate {
public:
    explicit HalfScreenTransitioningDelegate(ui::Animations& animations) : animations_(animations) {}

    [[nodiscard]] static HalfScreenPresentationController presentationController(ui::View& presented,
                                                                                 ui::View* container) {
        return {presented, container};
    }
    [[nodiscard]] std::shared_ptr<ui::AnimatedTransitioning>
    animationControllerForPresented(ui::ViewController& presented) override;
    [[nodiscard]] std::shared_ptr<ui::AnimatedTransitioning>
    animationControllerForDismissed(ui::ViewController& dismissed) override;

private:
    ui::Animations& animations_;
};

} // namespace tessivo
