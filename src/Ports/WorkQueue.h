#pragma once

#include <functional>

namespace tessivo {

/// Work that must not hold up the main thread.
class WorkQueue {
public:
    virtual ~WorkQueue() = default;

    /// Runs `work` on a thread of the queue's own, never inline, one after the other in the order of posting.
    /// Safe from any thread. Work still waiting when the queue is destroyed is dropped, as is work posted
    /// after `finish`.
    virtual void post(std::function<void()> work) = 0;

    /// Runs all work that waits, and what that work posts in turn, and then returns. Not to be called from
    /// the queue's own work.
    virtual void finish() = 0;
};

} // namespace tessivo
