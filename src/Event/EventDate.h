#pragma once

#include "Ports/DateFormatter.h"
#include "Ports/Time.h"

#include <optional>
#include <string>
#include <string_view>

namespace tessivo {

/// An event keeps its date and its time of day as texts of these forms, in the language of the device.
inline constexpr std::string_view dateFormat = "dd MMMM yyyy";
inline constexpr std::string_view timeFormat = "h:mm a";
/// A date, one blank and a time.
inline constexpr std::string_view fullFormat = "dd MMMM yyyy h:mm a";

/// The moment of an event; empty if its texts cannot be parsed in the device's current language. With no time
/// (absent or empty) an event begins with its day. `fullFormatter` parses `fullFormat`, `dateFormatter`
/// `dateFormat`.
[[nodiscard]] std::optional<Instant> eventDateOf(const std::optional<std::string>& dateEvent,
                                                 const std::optional<std::string>& timeEvent,
                                                 const DateFormatter& fullFormatter,
                                                 const DateFormatter& dateFormatter);

/// An event of this very moment still lies ahead.
[[nodiscard]] constexpr bool isPast(Instant eventDate, Instant now) {
    return eventDate < now;
}

} // namespace tessivo
