#pragma once

#include "Ports/Clock.h"

namespace tessivo {

/// The machine's clock.
class SystemClock final : public Clock {
public:
    Instant now() const override {
        return std::chrono::time_point_cast<Seconds>(std::chrono::system_clock::now());
    }
};

} // namespace tessivo
