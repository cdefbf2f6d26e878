#include "qt/QtTimers.h"

#include <QTimer>

#include <algorithm>
#include <cmath>
#include <limits>
#include <memory>

namespace tessivo {
namespace {

/// Whole milliseconds, never less than requested: a tick that comes early would find the minute unchanged.
std::chrono::milliseconds milliseconds(Seconds time) {
    const double rounded = std::ceil(std::max(time.count(), 0.0) * 1000);
    return std::chrono::milliseconds(
        static_cast<long>(std::min(rounded, double{std::numeric_limits<int>::max()})));
}

Subscription start(Seconds delay, bool once, std::function<void()> fire) {
    auto timer = std::make_shared<QTimer>();
    timer->setSingleShot(once);
    timer->setTimerType(Qt::PreciseTimer);
    QObject::connect(timer.get(), &QTimer::timeout, timer.get(), [fire = std::move(fire)] {
        const auto held = fire; // the handle may be dropped, and the timer with it, in the call
        held();
    });
    timer->start(milliseconds(delay));
    return Subscription([timer]() mutable {
        timer->stop();
        timer->disconnect();
        timer.reset();
    });
}

} // namespace

Subscription QtTimers::once(Seconds delay, std::function<void()> fire) {
    return start(delay, true, std::move(fire));
}

Subscription QtTimers::repeating(Seconds interval, std::function<void()> fire) {
    return start(interval, false, std::move(fire));
}

} // namespace tessivo
