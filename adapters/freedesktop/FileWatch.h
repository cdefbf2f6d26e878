#pragma once

#include "Ports/Subscription.h"

#include <filesystem>
#include <functional>

namespace tessivo::freedesktop {

class EventLoop;

/// Calls `changed` whenever another file has come under the name of `file`, or it has been written and
/// closed, for as long as the handle is held. For a file whose folder cannot be watched it is never called.
[[nodiscard]] Subscription watchFile(EventLoop& loop, const std::filesystem::path& file,
                                     std::function<void()> changed);

} // namespace tessivo::freedesktop
