#include "freedesktop/DataFolder.h"

#include <pwd.h>
#include <unistd.h>

#include <cstdlib>

namespace tessivo::freedesktop {
namespace {

std::filesystem::path homeFolder() {
    if (const char* home = std::getenv("HOME"); home != nullptr && *home == '/')
        return home;
    const auto* user = ::getpwuid(::getuid());
    return user != nullptr ? user->pw_dir : "/";
}

} // namespace

std::filesystem::path dataFolder() {
    // A relative path is ignored: its meaning would depend on the current folder.
    if (const char* folder = std::getenv("XDG_DATA_HOME"); folder != nullptr && *folder == '/')
        return std::filesystem::path(folder) / "tessivo";
    return homeFolder() / ".local/share/tessivo";
}

std::filesystem::path reminderQueueFile() {
    return dataFolder() / "reminders.sqlite";
}

} // namespace tessivo::freedesktop
