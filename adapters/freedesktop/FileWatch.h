#pragma once

#include "Ports/Subscription.h"

#include <filesystem>
#include <functional>

namespace tessivo::freedesktop {

class EventLoop;

/// Calls `changed` whenever `file` is replaced by another, or has been written and closed, for as long as the
/// handle is held. Never called for a file whose folder cannot be watched.
[[nodiscard]] Subscription watchFile(EventLoop& loop, const std::filesystem::path& file,
                                     std::function<void()> changed);

} // namespace tessivo::freedesktop
