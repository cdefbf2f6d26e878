#pragma once

#include <functional>

namespace tessivo {

/// Work for the main thread.
class MainQueue {
public:
    virtual ~MainQueue() = default;

    /// Runs `work` on the main thread in a later turn of its loop, never inline, in the order of posting.
    /// Safe from any thread. Work still waiting when the program ends is dropped.
    virtual void post(std::function<void()> work) = 0;
};

} // namespace tessivo
