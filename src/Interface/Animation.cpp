#include "Interface/Animation.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace tessivo::ui {
namespace {

/// What is left of the way when a curve counts as arrived: less than a pixel on any screen.
constexpr double restThreshold = 0.001;

constexpr Seconds usualFrame{1.0 / 60};

/// Position of a spring at rest at 0 that is pulled to 1, by its natural frequency and damping ratio.
double springPosition(double frequency, double ratio, double velocity, double time) {
    if (ratio < 1) {
        const double damped = frequency * std::sqrt(1 - ratio * ratio);
        const double decay = std::exp(-ratio * frequency * time);
        return 1 - decay * (std::cos(damped * time) +
                            (ratio * frequency - velocity) / damped * std::sin(damped * time));
    }
    if (ratio > 1) {
        const double root = frequency * std::sqrt(ratio * ratio - 1);
        const double slow = -ratio * frequency + root;
        const double fast = -ratio * frequency - root;
        const double share = (velocity + fast) / (fast - slow);
        return 1 - (share * std::exp(slow * time) + (1 - share) * std::exp(fast * time));
    }
    return 1 - std::exp(-frequency * time) * (1 + (frequency - velocity) * time);
}

double finiteVelocity(const Spring& spring) {
    return std::isfinite(spring.initialVelocity) ? spring.initialVelocity : 0;
}

double frequencyOf(const Spring& spring) {
    return std::sqrt(spring.stiffness / spring.mass);
}

double ratioOf(const Spring& spring) {
    return spring.damping / (2 * std::sqrt(spring.stiffness * spring.mass));
}

/// Natural frequency at which a spring of that ratio has come to rest after `duration`.
double frequencyFor(const DampedOver& timing) {
    constexpr double criticalRest = 9.2334; // (1 + y) exp(-y) = restThreshold
    const double duration = std::max(timing.duration.count(), 1e-6);
    if (timing.dampingRatio >= 1)
        return criticalRest / duration;
    return -std::log(restThreshold) / (timing.dampingRatio * duration);
}

/// The cubic curve from (0, 0) to (1, 1) with control points (0.42, 0) and (0.58, 1).
double easeInOut(double time) {
    constexpr double x1 = 0.42;
    constexpr double x2 = 0.58;
    double parameter = time;
    for (int iteration = 0; iteration < 8; ++iteration) {
        const double rest = 1 - parameter;
        const double x = 3 * rest * rest * parameter * x1 + 3 * rest * parameter * parameter * x2 +
                         parameter * parameter * parameter;
        const double slope =
            3 * rest * rest * x1 + 6 * rest * parameter * (x2 - x1) + 3 * parameter * parameter * (1 - x2);
        parameter = std::clamp(parameter - (x - time) / slope, 0.0, 1.0);
    }
    return parameter * parameter * (3 - 2 * parameter);
}

template <class... Cases>
struct Overloaded : Cases... {
    using Cases::operator()...;
};
template <class... Cases>
Overloaded(Cases...) -> Overloaded<Cases...>;

} // namespace

double fractionDone(const Timing& timing, Seconds elapsed) {
    if (elapsed <= Seconds(0))
        return 0;
    if (elapsed >= lengthOf(timing))
        return 1;
    const double time = elapsed.count();
    return std::visit(
        Overloaded{[&](const EaseInOut& curve) { return easeInOut(time / curve.duration.count()); },
                   [&](const DampedOver& curve) {
                       return springPosition(frequencyFor(curve), curve.dampingRatio, 0, time);
                   },
                   [&](const Spring& spring) {
                       return springPosition(frequencyOf(spring), ratioOf(spring), finiteVelocity(spring),
                                             time);
                   }},
        timing);
}

Seconds lengthOf(const Timing& timing) {
    return std::visit(Overloaded{[](const EaseInOut& curve) { return curve.duration; },
                                 [](const DampedOver& curve) { return curve.duration; },
                                 [](const Spring& spring) {
                                     // The envelope of the motion falls with the slower of its two exponents;
                                     // a fast start only adds to what must fall.
                                     const double frequency = frequencyOf(spring);
                                     const double ratio = ratioOf(spring);
                                     const double slowest =
                                         ratio <= 1 ? ratio * frequency
                                                    : frequency * (ratio - std::sqrt(ratio * ratio - 1));
                                     const double size = 2 + std::abs(finiteVelocity(spring)) / frequency;
                                     return Seconds(std::log(size / restThreshold) / slowest);
                                 }},
                      timing);
}

Animations::~Animations() {
    for (const auto& animator : std::exchange(running_, {}))
        animator->stopAnimation(true);
}

void Animations::run(std::shared_ptr<PropertyAnimator> animator) {
    if (lastFrame_)
        animator->startedAt_ = lastFrame_;
    running_.push_back(std::move(animator));
    if (!listening_.isActive())
        listening_ = frames_.listen([this](Seconds timestamp) { step(timestamp); });
}

void Animations::leave(const PropertyAnimator& animator) {
    std::erase_if(running_, [&](const auto& running) { return running.get() == &animator; });
    if (running_.empty()) {
        listening_.end();
        lastFrame_.reset();
    }
}

void Animations::step(Seconds timestamp) {
    lastFrame_ = timestamp;
    const auto running = running_;
    for (const auto& animator : running) {
        if (animator->isRunning())
            animator->step(timestamp, reducedMotion_);
    }
}

std::shared_ptr<PropertyAnimator> PropertyAnimator::make(Animations& animations, Timing timing) {
    return std::shared_ptr<PropertyAnimator>(new PropertyAnimator(animations, timing));
}

PropertyAnimator::PropertyAnimator(Animations& animations, Timing timing)
    : animations_(animations), timing_(timing) {}

PropertyAnimator::~PropertyAnimator() = default;

void PropertyAnimator::addAnimations(std::function<void()> changes) {
    if (running_ && !delay_.isActive())
        runBlock(changes);
    else
        changes_.push_back(std::move(changes));
}

void PropertyAnimator::addCompletion(std::function<void(AnimatingPosition)> completion) {
    completions_.push_back(std::move(completion));
}

void PropertyAnimator::startAnimation() {
    if (running_)
        return;
    running_ = true;
    begin();
}

void PropertyAnimator::startAnimation(Seconds delay) {
    if (delay <= Seconds(0))
        return startAnimation();
    if (running_)
        return;
    running_ = true;
    delay_ = animations_.timers_.once(delay, [self = shared_from_this()] {
        self->delay_.end();
        self->begin();
    });
}

void PropertyAnimator::begin() {
    startedAt_.reset();
    animations_.run(shared_from_this());
    for (const auto& changes : std::exchange(changes_, {}))
        runBlock(changes);
}

void PropertyAnimator::runBlock(const std::function<void()>& changes) {
    const auto outer = std::exchange(animations_.block_, this);
    changes();
    animations_.block_ = outer;
}

void PropertyAnimator::step(Seconds timestamp, bool toTheEnd) {
    // What starts from rest starts at the frame before: a first picture of the start would be a standstill.
    if (!startedAt_)
        startedAt_ = timestamp - usualFrame;
    const auto elapsed = timestamp - *startedAt_;
    if (toTheEnd || elapsed >= lengthOf(timing_)) {
        end(AnimatingPosition::End);
        return;
    }
    const double fraction = fractionDone(timing_, elapsed);
    for (std::size_t index = 0; index < views_.size(); ++index)
        views_[index]->progress(*this, fraction);
}

void PropertyAnimator::stopAnimation(bool withoutFinishing) {
    if (!running_)
        return;
    if (withoutFinishing)
        completions_.clear();
    end(AnimatingPosition::Current);
}

void PropertyAnimator::end(AnimatingPosition position) {
    const auto self = shared_from_this();
    running_ = false;
    delay_.end();
    animations_.leave(*this);
    for (View* view : std::exchange(views_, {}))
        view->settle(*this, position == AnimatingPosition::Current);
    for (const auto& completion : std::exchange(completions_, {}))
        completion(position);
}

void PropertyAnimator::join(View& view) {
    if (std::ranges::find(views_, &view) == views_.end())
        views_.push_back(&view);
}

void PropertyAnimator::forget(const View& view) {
    std::erase(views_, &view);
}

} // namespace tessivo::ui
