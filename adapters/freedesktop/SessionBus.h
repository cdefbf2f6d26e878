#pragma once

#include "Ports/Error.h"
#include "freedesktop/Handles.h"

#include <string>

namespace tessivo::freedesktop {

class EventLoop;

/// The connection of a process to the desktop session's message bus.
class SessionBus final {
public:
    /// Connects. When the bus goes away the loop quits: a session that has ended shows nothing more.
    [[nodiscard]] static Result<SessionBus> open(EventLoop& loop);

    [[nodiscard]] sd_bus* handle() const { return bus_.get(); }

    /// A unique id of this bus connection.
    [[nodiscard]] std::string identity() const;

private:
    explicit SessionBus(Owned<sd_bus> bus) : bus_(std::move(bus)) {}

    Owned<sd_bus> bus_;
};

} // namespace tessivo::freedesktop
