#pragma once

#include <chrono>

namespace tessivo {

/// A length of time in seconds, with fractions.
using Seconds = std::chrono::duration<double>;

/// A moment on the wall clock: seconds since 1970-01-01 00:00 UTC, with fractions, negative before it.
using Instant = std::chrono::time_point<std::chrono::system_clock, Seconds>;

[[nodiscard]] constexpr Instant instantAt(double secondsSince1970) {
    return Instant(Seconds(secondsSince1970));
}

[[nodiscard]] constexpr double secondsSince1970(Instant instant) {
    return instant.time_since_epoch().count();
}

} // namespace tessivo
