#pragma once

namespace tessivo::freedesktop {

inline constexpr const char* applicationId = "org.tessivo.Tessivo";
inline constexpr const char* applicationPath = "/org/tessivo/Tessivo";

inline constexpr const char* remindersName = "org.tessivo.Tessivo.Reminders"; ///< of the interface, too
inline constexpr const char* remindersPath = "/org/tessivo/Tessivo/Reminders";

inline constexpr const char* notificationsName = "org.freedesktop.Notifications"; ///< of the interface, too
inline constexpr const char* notificationsPath = "/org/freedesktop/Notifications";

} // namespace tessivo::freedesktop
