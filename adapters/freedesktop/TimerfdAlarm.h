#pragma once

#include "Reminders/WallAlarm.h"

namespace tessivo {
class Console;
}

namespace tessivo::freedesktop {

class EventLoop;

/// The kernel's timer on the wall clock, which also rings when somebody sets the clock and when the machine
/// resumes from a suspend. Where the kernel gives no timer, the console says so and the loop checks the
/// clock every half minute instead. Loop and console must outlive it and its handles.
class TimerfdAlarm final : public WallAlarm {
public:
    TimerfdAlarm(EventLoop& loop, Console& console) : loop_(loop), console_(console) {}

    [[nodiscard]] Subscription wakeAt(Instant due, std::function<void()> wake) override;

private:
    EventLoop& loop_;
    Console& console_;
};

} // namespace tessivo::freedesktop
