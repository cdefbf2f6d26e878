#include "UnsplashPicker/OperationQueue.h"

#include "Ports/WorkQueue.h"

#include <utility>

namespace tessivo::unsplash {

OperationQueue::OperationQueue(WorkQueue& work, std::string name) : work_(work), name_(std::move(name)) {}

void OperationQueue::addOperation(std::shared_ptr<ConcurrentOperation> operation) {
    operation->setFinishedObserver([weak = std::weak_ptr(state_), finished = operation.get()] {
        const auto state = weak.lock();
        if (!state)
            return;
        const std::lock_guard lock(state->mutex);
        std::erase_if(state->operations, [finished](const auto& held) { return held.get() == finished; });
    });
    {
        const std::lock_guard lock(state_->mutex);
        state_->operations.push_back(operation);
    }
    work_.post([operation = std::move(operation)] { operation->start(); });
}

void OperationQueue::cancelAllOperations() {
    std::vector<std::shared_ptr<ConcurrentOperation>> operations;
    {
        const std::lock_guard lock(state_->mutex);
        operations = state_->operations;
    }
    for (const auto& operation : operations)
        operation->cancel();
}

std::size_t OperationQueue::operationCount() const {
    const std::lock_guard lock(state_->mutex);
    return state_->operations.size();
}

} // namespace tessivo::unsplash
