#pragma once

#include "Ports/NotificationCenter.h"
#include "Ports/NotificationQueue.h"

#include <atomic>
#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace tessivo {

class Clock;
class MainQueue;
class WorkQueue;

/// The program's side of the notifications: it keeps the queue of requests, and the helper shows what is in
/// it. A work queue of its own does all the work in the order of the calls and runs the completions; the
/// helper is notified of changes when nothing is left to do.
///
/// Made, finished and destroyed on the main thread.
class QueuedNotificationCenter final : public NotificationCenter {
public:
    /// Puts the question whether notifications may be shown before the user, and hands on what they say,
    /// once, on the main thread. Called on the main thread, at most once in the life of the queue unless it
    /// goes unanswered.
    using Question = std::function<void(std::function<void(bool granted)> answer)>;

    /// What the center stands on; all of it must outlive the center.
    struct Machine {
        NotificationQueue& queue; ///< used by the center alone
        const Calendar& calendar; ///< the device's
        /// The calendar of the days in the queue: the same for every process that reads it, whatever language
        /// the process was started in.
        const Calendar& queueCalendar;
        MainQueue& mainQueue;
        const Clock& clock;
    };

    /// `work` is used for nothing else. `queueChanged` notifies the helper and is called as part of that
    /// work.
    QueuedNotificationCenter(Machine machine, std::unique_ptr<WorkQueue> work, Question question,
                             std::function<void()> queueChanged);
    QueuedNotificationCenter(const QueuedNotificationCenter&) = delete;
    QueuedNotificationCenter& operator=(const QueuedNotificationCenter&) = delete;

    /// Drops what has not been begun, completions included.
    ~QueuedNotificationCenter() override;

    void requestAuthorization(int options,
                              std::function<void(bool granted, Outcome error)> completion) override;
    void getNotificationSettings(std::function<void(AuthorizationStatus)> completion) override;
    void getPendingNotificationRequests(std::function<void(const PendingRequests&)> completion) override;
    void add(NotificationRequest request, std::function<void(Outcome error)> completion) override;
    void removePendingNotificationRequests(std::vector<std::string> identifiers) override;

    /// The user's answer, given or changed outside the question.
    void setAuthorization(bool granted);

    /// The program has started: notifies the helper, which also starts it if it is not running. Calls
    /// `restore` on the main thread if requests were lost with a damaged queue: what it asks of this center,
    /// and what the completions ask in turn, makes the loss good.
    void begin(std::function<void()> restore);

    /// Finishes all requests so far, completions and their requests included, and then does nothing more. To
    /// be called while all that completions reach still stands.
    void finish();

private:
    using AuthorizationCompletion = std::function<void(bool granted, Outcome error)>;

    void post(std::function<void()> work);
    void ask();
    void clearLoss();
    [[nodiscard]] Outcome addToQueue(const NotificationRequest& request);
    [[nodiscard]] PendingRequests pendingRequests();

    Machine machine_;
    Question question_;
    std::function<void()> queueChanged_;
    std::shared_ptr<QueuedNotificationCenter*> self_; ///< for answers, on the main thread
    std::atomic<int> waiting_ = 0;                    ///< calls that have not been carried out

    // These belong to the work.
    bool helperMustKnow_ = false;
    std::vector<AuthorizationCompletion> asking_; ///< who waits for the user
    std::shared_ptr<const QueuedRequests> listed_;
    PendingRequests pending_; ///< the requests of `listed_`

    std::unique_ptr<WorkQueue> work_; ///< last: its work uses what stands above
};

} // namespace tessivo
