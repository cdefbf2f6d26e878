#include "freedesktop/TimerfdAlarm.h"

#include "Ports/Console.h"
#include "freedesktop/EventLoop.h"

#include <sys/timerfd.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cmath>
#include <cstring>
#include <memory>
#include <string>
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
        if (descriptor >= 0)
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
    const auto ring = [alarm = std::weak_ptr(alarm), wake = std::move(wake)] {
        if (const auto ringing = alarm.lock())
            ringing->watch.end();
        wake();
    };
    const auto spec = oneShotAt(due);
    constexpr int flags = TFD_TIMER_ABSTIME | TFD_TIMER_CANCEL_ON_SET;
    if (::timerfd_settime(alarm->descriptor, flags, &spec, nullptr) == 0) {
        // Readable when it has rung, and when the clock was set: either is a reason to look.
        alarm->watch = loop_.watch(alarm->descriptor, ring);
    } else {
        console_.print(std::string("Reminders may come half a minute late: the system gives no timer (") +
                       std::strerror(errno) + ")");
        alarm->watch = loop_.poll([due, ring] {
            if (std::chrono::system_clock::now() >= due)
                ring();
        });
    }
    return Subscription([alarm = std::move(alarm)]() mutable { alarm.reset(); });
}

} // namespace tessivo::freedesktop
