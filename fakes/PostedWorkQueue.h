#pragma once

#include "Ports/MainQueue.h"
#include "Ports/WorkQueue.h"

#include <deque>
#include <memory>
#include <utility>

namespace tessivo::fakes {

/// Background work in turns of the main queue: on virtual time nothing runs beside it.
class PostedWorkQueue final : public WorkQueue {
public:
    explicit PostedWorkQueue(MainQueue& queue) : queue_(queue) {}

    void post(std::function<void()> work) override {
        if (finished_)
            return;
        waiting_->push_back(std::move(work));
        queue_.post([waiting = std::weak_ptr(waiting_)] {
            if (const auto works = waiting.lock(); works && !works->empty())
                runNext(*works);
        });
    }

    void finish() override {
        while (!waiting_->empty())
            runNext(*waiting_);
        finished_ = true;
    }

private:
    using Works = std::deque<std::function<void()>>;

    static void runNext(Works& works) {
        const auto work = std::move(works.front());
        works.pop_front();
        work();
    }

    MainQueue& queue_;
    std::shared_ptr<Works> waiting_ = std::make_shared<Works>();
    bool finished_ = false;
};

} // namespace tessivo::fakes
