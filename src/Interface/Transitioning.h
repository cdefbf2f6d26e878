#pragma once

#include <functional>
#include <memory>

namespace tessivo::ui {

class View;
class ViewController;

/// What a transition between two full screens works on. The views lie where they stand before it.
struct TransitionContext {
    View& from;
    View& to;
    /// To be called once, when the transition has ended.
    std::function<void()> completeTransition;
    /// What holds both views; null where they lie side by side in no other.
    View* container = nullptr;
};

/// Moves one screen in or out.
class AnimatedTransitioning {
public:
    virtual ~AnimatedTransitioning() = default;
    virtual void animateTransition(TransitionContext context) = 0;
};

/// Chooses the transitions of a screen that is presented in the custom style. Null moves nothing.
class TransitioningDelegate {
public:
    virtual ~TransitioningDelegate() = default;
    [[nodiscard]] virtual std::shared_ptr<AnimatedTransitioning>
    animationControllerForPresented(ViewController& presented) = 0;
    [[nodiscard]] virtual std::shared_ptr<AnimatedTransitioning>
    animationControllerForDismissed(ViewController& dismissed) = 0;
};

} // namespace tessivo::ui
