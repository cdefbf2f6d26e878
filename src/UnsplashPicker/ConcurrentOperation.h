#pragma once

#include "Ports/Error.h"

#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <vector>

namespace tessivo {
class WorkQueue;
}

namespace tessivo::unsplash {

/// One piece of work on a queue that goes on after its start has returned. Used once, made by
/// `std::make_shared`.
///
///   waiting --start--> running --finish--> finished
///      |                                      ^
///      +--start of a cancelled operation -----+
///
/// It is started on the queue's thread, cancelled from any thread, and finished wherever its work ends.
/// Cancelling finishes nothing by itself.
class ConcurrentOperation : public std::enable_shared_from_this<ConcurrentOperation> {
public:
    virtual ~ConcurrentOperation() = default;

    /// Why the operation failed; settled before it is finished.
    [[nodiscard]] std::optional<Error> error() const;

    [[nodiscard]] bool isExecuting() const;
    [[nodiscard]] bool isFinished() const;
    [[nodiscard]] bool isCancelled() const;

    /// Only while the operation waits: where a dependency has been cancelled, this one does not run either.
    void addDependency(std::shared_ptr<ConcurrentOperation> operation);

    /// Called once, as the operation becomes finished, on the thread on which that happens.
    void setCompletionBlock(std::function<void()> completion);

    void start();
    virtual void cancel();

protected:
    /// The work. Ends in `finish`, now or later.
    virtual void main() = 0;

    void setError(Error error);
    /// Ends the operation; a second time does nothing.
    void finish();
    /// Keeps the error and ends the operation as a cancelled one.
    void fail(Error error);

private:
    friend class OperationQueue;

    /// For the queue, ahead of the completion block.
    void setFinishedObserver(std::function<void()> observer);

    mutable std::mutex mutex_; ///< guards all below: threads meet here
    std::optional<Error> error_;
    std::vector<std::shared_ptr<ConcurrentOperation>> dependencies_;
    std::function<void()> completion_;
    std::function<void()> finishedObserver_;
    bool overrideExecuting = false;
    bool overrideFinished = false;
    bool cancelled_ = false;
};

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
