#pragma once

#include "UnsplashPicker/ConcurrentOperation.h"

#include <string>

namespace tessivo {
class WorkQueue;
}

namespace tessivo::unsplash {

/// Starts operations in the order in which they are added, without waiting for one before starting the next,
/// and keeps each until it is finished. Safe from any thread.
class OperationQueue {
public:
    OperationQueue(WorkQueue& work, std::string name);

    [[nodiscard]] const std::string& name() const { return name_; }

    void addOperation(std::shared_ptr<ConcurrentOperation> operation);
    /// Cancels all unfinished operations; each still ends, with its completion block.
    void cancelAllOperations();
    /// How many are not finished.
    [[nodiscard]] std::size_t operationCount() const;

private:
    /// Shared with the operations' ends, which may come after the queue has gone.
    struct State {
        mutable std::mutex mutex;
        std::vector<std::shared_ptr<ConcurrentOperation>> operations;
    };

    WorkQueue& work_;
    std::string name_;
    std::shared_ptr<State> state_ = std::make_shared<State>();
};

} // namespace tessivo::unsplash
