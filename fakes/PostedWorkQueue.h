#pragma once

#include "Ports/MainQueue.h"
#include "Ports/WorkQueue.h"

namespace tessivo::fakes {

/// Background work in turns of the main queue: on virtual time nothing runs beside it.
class PostedWorkQueue final : public WorkQueue {
public:
    explicit PostedWorkQueue(MainQueue& queue) : queue_(queue) {}

    void post(std::function<void()> work) override { queue_.post(std::move(work)); }

private:
    MainQueue& queue_;
};

} // namespace tessivo::fakes
