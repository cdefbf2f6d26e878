#pragma once

#include "Ports/Error.h"
#include "Ports/Subscription.h"
#include "freedesktop/Handles.h"

#include <functional>
#include <initializer_list>
#include <map>
#include <memory>
#include <vector>

namespace tessivo::freedesktop {

/// The main loop of a process without windows, which sleeps until a descriptor, the bus or a signal wakes it.
/// One thread.
class EventLoop final {
public:
    /// Ends in an error where the system is out of descriptors.
    [[nodiscard]] static Result<EventLoop> make();

    /// Calls `ready` whenever `descriptor` can be read, for as long as the handle is held.
    [[nodiscard]] Subscription watch(int descriptor, std::function<void()> ready);

    /// Calls `work` soon, after whatever else wakes the loop, and at least every half minute, for as long as
    /// the handle is held. Unlike a watch it needs nothing of the system.
    [[nodiscard]] Subscription poll(std::function<void()> work);

    /// Calls `came` when the process gets one of `signals`, which then do not end it.
    [[nodiscard]] Outcome onSignals(std::initializer_list<int> signals, std::function<void()> came);

    /// Runs until `quit`, and returns its number; a lost bus connection quits too, with 1.
    int run();
    void quit(int exitCode);

    [[nodiscard]] sd_event* handle() const { return event_.get(); }

private:
    struct Polls {
        std::map<int, std::function<void()>> works;
        int next = 0;
        bool hasNew = false;
    };

    explicit EventLoop(Owned<sd_event> event) : event_(std::move(event)) {}

    void runPolls();

    Owned<sd_event> event_;
    std::vector<std::unique_ptr<std::function<void()>>> signalHandlers_;
    std::shared_ptr<Polls> polls_ = std::make_shared<Polls>();
};

} // namespace tessivo::freedesktop
