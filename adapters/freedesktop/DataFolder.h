#pragma once

#include <filesystem>

namespace tessivo::freedesktop {

/// Where the user's data of the program lies: "tessivo" in $XDG_DATA_HOME, or in ~/.local/share. It need not
/// exist.
[[nodiscard]] std::filesystem::path dataFolder();

/// The queue of reminders in it, which the program and the helper share. Its days are Gregorian for
/// everybody.
[[nodiscard]] std::filesystem::path reminderQueueFile();

} // namespace tessivo::freedesktop
