#include "hand/VirtualTime.h"

#include <QCoreApplication>
#include <QEvent>

#include <sys/syscall.h>
#include <time.h>
#include <unistd.h>

#include <cstdint>

namespace tessivo::virtualtime {
namespace {

constexpr std::int64_t nanosecondsPerSecond = 1'000'000'000;

/// Where monotonic time starts, always the same: Qt lines its coarse timers up with the full seconds.
constexpr std::int64_t origin = 1'000'000 * nanosecondsPerSecond;

constexpr std::chrono::seconds patience{20};        ///< of real time
constexpr std::chrono::microseconds forOthers{200}; ///< of real time in each step that waits for something

thread_local bool isVirtual = false;
std::int64_t moved = 0; ///< since the start; the main thread's only
std::int64_t realTimeAtStart = 0;

std::int64_t nanoseconds(const timespec& time) {
    return time.tv_sec * nanosecondsPerSecond + time.tv_nsec;
}

timespec timeOf(std::int64_t nanoseconds) {
    return {nanoseconds / nanosecondsPerSecond, nanoseconds % nanosecondsPerSecond};
}

std::int64_t realNow(clockid_t clock) {
    timespec now{};
    ::syscall(SYS_clock_gettime, clock, &now);
    return nanoseconds(now);
}

} // namespace

void start() {
    realTimeAtStart = realNow(CLOCK_REALTIME);
    isVirtual = true;
}

void step() {
    // What an event posts in turn belongs to the same moment.
    for (int round = 0; round < 3; ++round)
        QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    moved += std::chrono::nanoseconds(stepLength).count();
}

void pass(std::chrono::milliseconds span) {
    for (auto passed = std::chrono::milliseconds(0); passed < span; passed += stepLength)
        step();
}

bool runUntil(const std::function<bool()>& done) {
    const std::int64_t bound = realNow(CLOCK_MONOTONIC) + std::chrono::nanoseconds(patience).count();
    while (!done()) {
        if (realNow(CLOCK_MONOTONIC) > bound)
            return false;
        const timespec pause = timeOf(std::chrono::nanoseconds(forOthers).count());
        ::syscall(SYS_nanosleep, &pause, nullptr);
        step();
    }
    return true;
}

} // namespace tessivo::virtualtime

// In place of the C library's, for this program and every library that it loads.

extern "C" int clock_gettime(clockid_t clock, timespec* time) noexcept {
    using namespace tessivo::virtualtime;
    if (isVirtual) {
        switch (clock) {
        case CLOCK_MONOTONIC:
        case CLOCK_MONOTONIC_RAW:
        case CLOCK_MONOTONIC_COARSE:
        case CLOCK_BOOTTIME:
            *time = timeOf(origin + moved);
            return 0;
        case CLOCK_REALTIME:
        case CLOCK_REALTIME_COARSE:
            *time = timeOf(realTimeAtStart + moved);
            return 0;
        default: // the processor time that was spent stays real
            break;
        }
    }
    return static_cast<int>(::syscall(SYS_clock_gettime, clock, time));
}

extern "C" int nanosleep(const timespec* span, timespec* rest) {
    using namespace tessivo::virtualtime;
    if (isVirtual) {
        moved += nanoseconds(*span);
        return 0;
    }
    return static_cast<int>(::syscall(SYS_nanosleep, span, rest));
}
