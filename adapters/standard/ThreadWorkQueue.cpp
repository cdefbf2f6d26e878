#include "standard/ThreadWorkQueue.h"

#include <utility>

namespace tessivo {

ThreadWorkQueue::ThreadWorkQueue() : thread_([this] { run(); }) {}

ThreadWorkQueue::~ThreadWorkQueue() {
    end(State::Dropping);
}

void ThreadWorkQueue::finish() {
    end(State::Finishing);
}

void ThreadWorkQueue::end(State how) {
    if (!thread_.joinable())
        return;
    {
        const std::lock_guard lock(mutex_);
        state_ = how;
    }
    changed_.notify_one();
    thread_.join();
}

void ThreadWorkQueue::post(std::function<void()> work) {
    {
        const std::lock_guard lock(mutex_);
        waiting_.push_back(std::move(work));
    }
    changed_.notify_one();
}

void ThreadWorkQueue::run() {
    std::unique_lock lock(mutex_);
    while (true) {
        changed_.wait(lock, [this] { return state_ != State::Running || !waiting_.empty(); });
        if (waiting_.empty() || state_ == State::Dropping)
            return;
        auto work = std::move(waiting_.front());
        waiting_.pop_front();
        lock.unlock();
        work();
        work = nullptr; // what the work holds is let go of outside the lock
        lock.lock();
    }
}

} // namespace tessivo
