#pragma once

#include "Ports/Time.h"

namespace tessivo {

/// The wall clock. It may jump in either direction when the user or the network sets it.
class Clock {
public:
    virtual ~Clock() = default;

    /// The present moment. Safe from any thread, cannot fail.
    [[nodiscard]] virtual Instant now() const = 0;
};

} // namespace tessivo
