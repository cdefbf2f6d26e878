#pragma once

#include "Ports/WorkQueue.h"

#include <condition_variable>
#include <deque>
#include <mutex>
#include <thread>

namespace tessivo {

/// A work queue with a thread.
class ThreadWorkQueue final : public WorkQueue {
public:
    ThreadWorkQueue();
    /// Lets the work under way finish.
    ~ThreadWorkQueue() override;
    ThreadWorkQueue(const ThreadWorkQueue&) = delete;
    ThreadWorkQueue& operator=(const ThreadWorkQueue&) = delete;

    void post(std::function<void()> work) override;
    void finish() override;

private:
    enum class State { Running, Finishing, Dropping };

    void end(State how);
    void run();

    std::mutex mutex_;
    std::condition_variable changed_;
    std::deque<std::function<void()>> waiting_;
    State state_ = State::Running;
    std::thread thread_; ///< last: it runs on what stands above
};

} // namespace tessivo
