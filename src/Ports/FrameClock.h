#pragma once

#include "Ports/Subscription.h"
#include "Ports/Time.h"

#include <functional>

namespace tessivo {

/// The rhythm of the screen. Silent while nobody listens, so that a still screen costs nothing.
class FrameClock {
public:
    virtual ~FrameClock() = default;

    /// Calls `frame` on the main thread before each picture is drawn, for as long as the handle is held, with
    /// the picture's time stamp: steady seconds from an arbitrary origin, rising. Never inline.
    [[nodiscard]] virtual Subscription listen(std::function<void(Seconds timestamp)> frame) = 0;
};

} // namespace tessivo
