#pragma once

#include "Ports/Clock.h"
#include "Ports/FrameClock.h"
#include "Ports/MainQueue.h"
#include "Ports/Timers.h"

#include <cstdint>
#include <deque>
#include <functional>
#include <map>
#include <memory>
#include <mutex>

namespace tessivo::fakes {

/// All of the program's time on one virtual line. Only `advance` and `runPosted` move anything; a test never
/// waits.
///
/// Two times run along it: steady time, which only rises and drives timers and frames, and wall time, which
/// follows it but can be set to anything. Within one `advance` everything comes in the order of its due time;
/// timers that are due at the same time come in the order of their making, before the frame of that time;
/// posted work runs before any timer or frame that follows it.
///
/// All four ports belong to the main thread, but for `post` and `now`.
class Timeline final : public Clock, public Timers, public MainQueue, public FrameClock {
public:
    explicit Timeline(Instant wall = instantAt(1'700'000'000));

    Instant now() const override;
    Subscription once(Seconds delay, std::function<void()> fire) override;
    Subscription repeating(Seconds interval, std::function<void()> fire) override;
    void post(std::function<void()> work) override;
    Subscription listen(std::function<void(Seconds timestamp)> frame) override;

    /// Moves both times on by `span` and runs all that falls due, posted work included.
    void advance(Seconds span);

    /// Runs posted work, and what it posts in turn, without moving time.
    void runPosted();

    /// Sets the wall clock; timers do not notice.
    void setWall(Instant wall);

    /// Frames come at this distance while someone listens; 1/60 s at the start.
    void setFrameInterval(Seconds interval) { frameInterval_ = interval; }

    /// Timers that have not fired or been dropped.
    [[nodiscard]] std::size_t pending() const { return timers_.size(); }

    [[nodiscard]] bool framesAreAskedFor() const { return !listeners_.empty(); }

private:
    struct Timer {
        Seconds due;
        Seconds interval; ///< zero for a one-shot
        std::shared_ptr<std::function<void()>> fire;
    };

    Subscription schedule(Seconds delay, Seconds interval, std::function<void()> fire);
    void moveTo(Seconds steady);
    void fireTimer(std::uint64_t identifier);
    void fireFrame();

    mutable std::mutex mutex_; ///< guards queue_ and the two times, the parts that other threads reach
    std::deque<std::function<void()>> queue_;
    Seconds steady_{0};
    Instant wall_;

    std::uint64_t next_ = 0;
    std::map<std::uint64_t, Timer> timers_;
    std::map<std::uint64_t, std::shared_ptr<std::function<void(Seconds)>>> listeners_;
    Seconds frameInterval_{1.0 / 60};
    Seconds nextFrame_{0};
    std::shared_ptr<bool> alive_ = std::make_shared<bool>(true); ///< handles may outlive the line
};

} // namespace tessivo::fakes
