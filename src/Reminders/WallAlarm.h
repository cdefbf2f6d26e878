#pragma once

#include "Ports/Subscription.h"
#include "Ports/Time.h"

#include <functional>

namespace tessivo {

/// A timer on the wall clock.
class WallAlarm {
public:
    virtual ~WallAlarm() = default;

    /// Calls `wake` once on the main thread, never inline: when the wall clock shows `due`, which after a
    /// suspend or for a moment gone by is at once, or before that whenever somebody sets the clock. It does
    /// not wake a machine that sleeps. Dropping the handle ends it.
    [[nodiscard]] virtual Subscription wakeAt(Instant due, std::function<void()> wake) = 0;
};

} // namespace tessivo
