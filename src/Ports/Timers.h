#pragma once

#include "Ports/Subscription.h"
#include "Ports/Time.h"

#include <functional>

namespace tessivo {

/// Timers on the main thread. They run on steady time: a jump of the wall clock neither hurries nor delays
/// them.
class Timers {
public:
    virtual ~Timers() = default;

    /// Calls `fire` once on the main thread, `delay` from now; at the next turn of the main loop where
    /// `delay` is zero or negative, never inline. Dropping the handle before that ends the timer.
    [[nodiscard]] virtual Subscription once(Seconds delay, std::function<void()> fire) = 0;

    /// Calls `fire` on the main thread each `interval` (above zero), for as long as the handle is held.
    [[nodiscard]] virtual Subscription repeating(Seconds interval, std::function<void()> fire) = 0;
};

} // namespace tessivo
