#pragma once

#include "Reminders/WallAlarm.h"

namespace tessivo::freedesktop {

class EventLoop;

/// The kernel's timer on the wall clock, which also rings when somebody sets the clock and when the machine
/// resumes from a suspend. The loop must outlive it and its handles.
class TimerfdAlarm final : public WallAlarm {
public:
    explicit TimerfdAlarm(EventLoop& loop) : loop_(loop) {}

    [[nodiscard]] Subscription wakeAt(Instant due, std::function<void()> wake) override;

private:
    EventLoop& loop_;
};

} // namespace tessivo::freedesktop
