#include "fakes/Timeline.h"

#include <algorithm>
#include <vector>

namespace tessivo::fakes {

Timeline::Timeline(Instant wall) : wall_(wall) {}

Instant Timeline::now() const {
    const std::scoped_lock lock(mutex_);
    return wall_;
}

Subscription Timeline::once(Seconds delay, std::function<void()> fire) {
    return schedule(delay, Seconds(0), std::move(fire));
}

Subscription Timeline::repeating(Seconds interval, std::function<void()> fire) {
    return schedule(interval, interval, std::move(fire));
}

Subscription Timeline::schedule(Seconds delay, Seconds interval, std::function<void()> fire) {
    const auto identifier = next_++;
    const auto due = steady_ + std::max(delay, Seconds(0));
    timers_.emplace(identifier,
                    Timer{due, interval, std::make_shared<std::function<void()>>(std::move(fire))});
    return Subscription([this, identifier, alive = std::weak_ptr(alive_)] {
        if (!alive.expired())
            timers_.erase(identifier);
    });
}

void Timeline::post(std::function<void()> work) {
    const std::scoped_lock lock(mutex_);
    queue_.push_back(std::move(work));
}

Subscription Timeline::listen(std::function<void(Seconds timestamp)> frame) {
    if (listeners_.empty())
        nextFrame_ = steady_ + frameInterval_;
    const auto identifier = next_++;
    listeners_.emplace(identifier, std::make_shared<std::function<void(Seconds)>>(std::move(frame)));
    return Subscription([this, identifier, alive = std::weak_ptr(alive_)] {
        if (!alive.expired())
            listeners_.erase(identifier);
    });
}

void Timeline::setWall(Instant wall) {
    const std::scoped_lock lock(mutex_);
    wall_ = wall;
}

void Timeline::runPosted() {
    for (;;) {
        std::function<void()> work;
        {
            const std::scoped_lock lock(mutex_);
            if (queue_.empty())
                return;
            work = std::move(queue_.front());
            queue_.pop_front();
        }
        work();
    }
}

void Timeline::advance(Seconds span) {
    const auto end = steady_ + span;
    for (;;) {
        runPosted();
        const auto timer = std::ranges::min_element(
            timers_, [](const auto& a, const auto& b) { return a.second.due < b.second.due; });
        const bool timerIsDue = timer != timers_.end() && timer->second.due <= end;
        const bool frameIsDue = framesAreAskedFor() && nextFrame_ <= end;
        if (timerIsDue && (!frameIsDue || timer->second.due <= nextFrame_))
            fireTimer(timer->first);
        else if (frameIsDue)
            fireFrame();
        else
            break;
    }
    moveTo(end);
}

void Timeline::moveTo(Seconds steady) {
    const std::scoped_lock lock(mutex_);
    const auto step = std::max(steady - steady_, Seconds(0));
    steady_ += step;
    wall_ += step;
}

void Timeline::fireTimer(std::uint64_t identifier) {
    auto& timer = timers_.at(identifier);
    moveTo(timer.due);
    const auto fire = timer.fire;
    if (timer.interval > Seconds(0))
        timer.due += timer.interval;
    else
        timers_.erase(identifier);
    (*fire)();
}

void Timeline::fireFrame() {
    moveTo(nextFrame_);
    nextFrame_ += frameInterval_;
    std::vector<std::uint64_t> listening;
    for (const auto& [identifier, frame] : listeners_)
        listening.push_back(identifier);
    for (const auto identifier : listening) {
        if (const auto found = listeners_.find(identifier); found != listeners_.end()) {
            const auto frame = found->second;
            (*frame)(steady_);
        }
    }
}

} // namespace tessivo::fakes
