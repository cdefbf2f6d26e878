#include "UnsplashPicker/ConcurrentOperation.h"

#include "Ports/WorkQueue.h"

#include <algorithm>
#include <utility>

namespace tessivo::unsplash {

std::optional<Error> ConcurrentOperation::error() const {
    const std::lock_guard lock(mutex_);
    return error_;
}

bool ConcurrentOperation::isExecuting() const {
    const std::lock_guard lock(mutex_);
    return overrideExecuting;
}

bool ConcurrentOperation::isFinished() const {
    const std::lock_guard lock(mutex_);
    return overrideFinished;
}

bool ConcurrentOperation::isCancelled() const {
    const std::lock_guard lock(mutex_);
    return cancelled_;
}

void ConcurrentOperation::addDependency(std::shared_ptr<ConcurrentOperation> operation) {
    const std::lock_guard lock(mutex_);
    dependencies_.push_back(std::move(operation));
}

void ConcurrentOperation::setCompletionBlock(std::function<void()> completion) {
    const std::lock_guard lock(mutex_);
    completion_ = std::move(completion);
}

void ConcurrentOperation::setFinishedObserver(std::function<void()> observer) {
    const std::lock_guard lock(mutex_);
    finishedObserver_ = std::move(observer);
}

void ConcurrentOperation::start() {
    std::vector<std::shared_ptr<ConcurrentOperation>> dependencies;
    {
        const std::lock_guard lock(mutex_);
        overrideExecuting = true;
        dependencies = std::exchange(dependencies_, {});
    }
    if (isCancelled() || std::ranges::any_of(dependencies, &ConcurrentOperation::isCancelled)) {
        cancel();
        finish();
        return;
    }
    main();
}

void ConcurrentOperation::cancel() {
    const std::lock_guard lock(mutex_);
    cancelled_ = true;
}

void ConcurrentOperation::setError(Error error) {
    const std::lock_guard lock(mutex_);
    error_ = std::move(error);
}

void ConcurrentOperation::finish() {
    std::function<void()> observer;
    std::function<void()> completion;
    {
        const std::lock_guard lock(mutex_);
        if (overrideFinished)
            return;
        overrideExecuting = false;
        overrideFinished = true;
        observer = std::exchange(finishedObserver_, nullptr);
        completion = std::exchange(completion_, nullptr);
    }
    if (observer)
        observer();
    if (completion)
        completion();
}

void ConcurrentOperation::fail(Error error) {
    setError(std::move(error));
    cancel();
    finish();
}

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
