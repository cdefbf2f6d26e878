#pragma once

namespace tessivo::freedesktop {

inline constexpr const char* applicationId = "org.tessivo.Tessivo";
inline constexpr const char* applicationPath = "/org/tessivo/Tessivo";

/// The program's action that brings an event into view; its one parameter is the event's identifier.
inline constexpr const char* showEventAction = "show-event";

inline constexpr const char* remindersName = "org.tessivo.Tessivo.Reminders"; ///< also the interface's name
inline constexpr const char* remindersPath = "/org/tessivo/Tessivo/Reminders";

inline constexpr const char* notificationsName =
    "org.freedesktop.Notifications"; ///< also the interface's name
inline constexpr const char* notificationsPath = "/org/freedesktop/Notifications";

} // namespace tessivo::freedesktop
