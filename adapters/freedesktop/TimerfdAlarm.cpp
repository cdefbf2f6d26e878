#include "freedesktop/TimerfdAlarm.h"

#include "freedesktop/EventLoop.h"

#include <sys/timerfd.h>
#include <unistd.h>

#include <algorithm>
#include <cmath>
#include <memory>
#include <utility>

namespace tessivo::freedesktop {
namespace {

/// A timer and what waits for it.
struct Alarm {
    explicit Alarm(int timer) : descriptor(timer) {}
    Alarm(const Alarm&) = delete;
    Alarm& operator=(const Alarm&) = delete;
    ~Alarm() {
        watch.end();
        ::close(descriptor);
    }

    int descriptor;
    Subscription watch;
};

itimerspec oneShotAt(Instant due) {
    // All zero would disarm the timer, and the kernel knows no moment before 1970.
    const double seconds = std::clamp(secondsSince1970(due), 1.0, 1e12);
    const double whole = std::floor(seconds);
    itimerspec spec{};
    spec.it_value.tv_sec = static_cast<time_t>(whole);
    spec.it_value.tv_nsec = static_cast<long>((seconds - whole) * 1e9);
    return spec;
}

} // namespace

Subscription TimerfdAlarm::wakeAt(Instant due, std::function<void()> wake) {
    auto alarm = std::make_shared<Alarm>(::timerfd_create(CLOCK_REALTIME, TFD_CLOEXEC | TFD_NONBLOCK));
    const auto spec = oneShotAt(due);
    ::timerfd_settime(alarm->descriptor, TFD_TIMER_ABSTIME | TFD_TIMER_CANCEL_ON_SET, &spec, nullptr);
    // Readable when it has rung, and when the clock was set: either is a reason to look.
    alarm->watch = loop_.watch(alarm->descriptor, [alarm = std::weak_ptr(alarm), wake = std::move(wake)] {
        if (const auto ringing = alarm.lock())
            ringing->watch.end();
        wake();
    });
    return Subscription([alarm = std::move(alarm)]() mutable { alarm.reset(); });
}

} // namespace tessivo::freedesktop
