#pragma once

#include "Ports/Error.h"
#include "Ports/Subscription.h"
#include "freedesktop/Handles.h"

#include <functional>
#include <optional>

namespace tessivo::freedesktop {

/// The main loop of a process without windows, which sleeps until a descriptor, the bus or a signal wakes it.
/// One thread.
class EventLoop final {
public:
    /// Ends in an error where the system is out of descriptors.
    [[nodiscard]] static Result<EventLoop> make();

    /// Calls `ready` whenever `descriptor` can be read, for as long as the handle is held.
    [[nodiscard]] Subscription watch(int descriptor, std::function<void()> ready);

    /// Calls `ended` when the process is asked to end (SIGTERM, SIGINT) in place of ending it. One caller.
    [[nodiscard]] Outcome onTermination(std::function<void()> ended);

    /// Runs until `quit`, and returns its number; a lost bus connection quits too, with 1.
    int run();
    void quit(int exitCode);

    [[nodiscard]] sd_event* handle() const { return event_.get(); }

private:
    explicit EventLoop(Owned<sd_event> event) : event_(std::move(event)) {}

    Owned<sd_event> event_;
    std::unique_ptr<std::function<void()>> ended_;
};

} // namespace tessivo::freedesktop
