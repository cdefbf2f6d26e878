#pragma once

#include <functional>

namespace tessivo {

/// Work that must not hold up the main thread.
class WorkQueue {
public:
    virtual ~WorkQueue() = default;

    /// Runs `work` on a thread of the queue's own, never inline, one after the other in the order of posting.
    /// Safe from any thread. Work still waiting when the program ends is dropped.
    virtual void post(std::function<void()> work) = 0;
};

} // namespace tessivo
