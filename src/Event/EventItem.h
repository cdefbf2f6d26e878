#pragma once

#include "Ports/EventStore.h"

#include <cstdint>
#include <optional>
#include <string>

namespace tessivo {

/// "Not set" in `color`, `gradient`, `alertReminder` and `repReminder`: a stored number like any other.
inline constexpr std::int16_t NO_VALUE = 9999;

/// The draft of an event, which the add wizard fills step by step and copies forward from screen to screen.
/// It becomes a row in `CoreDataStack::addEvent`, which names the fields that must be set by then.
struct EventItem {
    std::optional<std::string> title;
    std::optional<std::string> dateEvent;
    std::optional<std::string> timeEvent;
    std::optional<std::int16_t> repEvent;
    std::optional<std::int16_t> alertReminder;
    std::optional<std::int16_t> repReminder;
    std::optional<std::string> remMess;
    std::optional<std::int16_t> timeFormat;
    std::optional<std::int16_t> color;
    std::optional<std::string> photoPath; ///< a URI, as text
    std::optional<Uuid> id;
    std::optional<std::string> unsplashPath;
    std::optional<std::int16_t> gradient;
    std::optional<bool> eventType;

    friend bool operator==(const EventItem&, const EventItem&) = default;
};

/// The row that the draft becomes. Of what has not been chosen yet, reminders and backgrounds are off and the
/// rest is 0.
[[nodiscard]] EventRecord recordOf(const EventItem& item);

} // namespace tessivo
