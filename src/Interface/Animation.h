#pragma once

#include "Interface/View.h"
#include "Ports/FrameClock.h"
#include "Ports/Timers.h"

#include <functional>
#include <memory>
#include <variant>
#include <vector>

// Animation in one page. A change made inside an animator's block takes hold of the model at once; what is
// drawn starts where it was and the animator takes the difference (the lag) to zero along its timing curve.
// Several animators may move one number at a time: their lags add up, so that nothing ever jumps. Animators
// are stepped with the time stamps of the frame clock and read no clock themselves: the same stamps give the
// same picture. What starts from rest has moved by its first frame, as if it had begun with the frame before.
//
//   Inactive --start--> Running --curve ends--> Inactive, completion(End)
//                          |------stop--------> Inactive; model := drawn, no completion
//                                               (with finishing: completion(Current))

namespace tessivo::ui {

/// Slow at both ends.
struct EaseInOut {
    Seconds duration;
};

/// Runs to its target within `duration`; a ratio of 1 does not overshoot, less bounces.
struct DampedOver {
    Seconds duration;
    double dampingRatio;
};

/// A mass on a spring, pulled from 0 to 1 of the way; `initialVelocity` in ways per second. It ends when it
/// has come to rest. A velocity that is not finite counts as none, so that the spring still ends.
struct Spring {
    double mass;
    double stiffness;
    double damping;
    double initialVelocity;
};

using Timing = std::variant<EaseInOut, DampedOver, Spring>;

/// How much of the way is done `elapsed` after the start: 0 at the start, 1 at the target; springs may go
/// beyond.
[[nodiscard]] double fractionDone(const Timing& timing, Seconds elapsed);

/// When the curve has arrived for good.
[[nodiscard]] Seconds lengthOf(const Timing& timing);

enum class AnimatingPosition { End, Current };

class PropertyAnimator;

/// The animations of one window. Listens to the frame clock only while something moves.
class Animations {
public:
    Animations(FrameClock& frames, Timers& timers) : frames_(frames), timers_(timers) {}
    Animations(const Animations&) = delete;
    Animations& operator=(const Animations&) = delete;
    ~Animations();

    /// With reduced motion an animation applies its final values in its first frame.
    void setReducedMotion(bool reduced) { reducedMotion_ = reduced; }
    [[nodiscard]] bool isAnimating() const { return !running_.empty(); }
    /// The steady time of this window.
    [[nodiscard]] Timers& timers() const { return timers_; }

private:
    friend class PropertyAnimator;
    friend class View;

    void run(std::shared_ptr<PropertyAnimator> animator);
    void leave(const PropertyAnimator& animator);
    void step(Seconds timestamp);

    FrameClock& frames_;
    Timers& timers_;
    std::vector<std::shared_ptr<PropertyAnimator>> running_;
    PropertyAnimator* block_ = nullptr; ///< whose block is being run
    Subscription listening_;
    std::optional<Seconds> lastFrame_; ///< while listening
    bool reducedMotion_ = false;
};

/// One run of changes along one timing curve. While it runs, its `Animations` keeps it alive. Main thread.
class PropertyAnimator final : public std::enable_shared_from_this<PropertyAnimator> {
public:
    /// Always made by this, since a running animator shares its own ownership.
    [[nodiscard]] static std::shared_ptr<PropertyAnimator> make(Animations& animations, Timing timing);
    ~PropertyAnimator();
    PropertyAnimator(const PropertyAnimator&) = delete;
    PropertyAnimator& operator=(const PropertyAnimator&) = delete;

    /// Changes to animate. Run at the start; at once where the animator is running already.
    void addAnimations(std::function<void()> changes);
    /// Heard once, when the animation has reached its end or was stopped with finishing.
    void addCompletion(std::function<void(AnimatingPosition)> completion);
    void startAnimation();
    /// Starts, and runs the blocks, `delay` from now. It counts as running meanwhile.
    void startAnimation(Seconds delay);
    /// Ends where the animation stands: the model takes over what is drawn. Completions are heard (`Current`)
    /// only when not `withoutFinishing`.
    void stopAnimation(bool withoutFinishing);
    [[nodiscard]] bool isRunning() const { return running_; }

private:
    friend class Animations;
    friend class View;

    PropertyAnimator(Animations& animations, Timing timing);
    void begin();
    void runBlock(const std::function<void()>& changes);
    void step(Seconds timestamp, bool toTheEnd);
    void end(AnimatingPosition position);
    void join(View& view);
    void forget(const View& view);

    Animations& animations_;
    Timing timing_;
    std::vector<std::function<void()>> changes_;
    std::vector<std::function<void(AnimatingPosition)>> completions_;
    std::vector<View*> views_;
    std::optional<Seconds> startedAt_; ///< stamp of the frame before the first
    Subscription delay_;
    bool running_ = false;
};

} // namespace tessivo::ui
