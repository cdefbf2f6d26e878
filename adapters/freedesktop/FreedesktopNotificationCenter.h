#pragma once

#include "Ports/NotificationCenter.h"
#include "Ports/NotificationQueue.h"

#include <condition_variable>
#include <deque>
#include <memory>
#include <mutex>
#include <thread>

namespace tessivo {
class MainQueue;
}

namespace tessivo::freedesktop {

/// The program's side of the notifications: it keeps the queue, and the helper shows what is in it. One
/// thread of its own does all the work in the order of the calls and runs the completions; the helper is told
/// of changes when the work at hand is done.
///
/// Made, ended and destroyed on the main thread.
class FreedesktopNotificationCenter final : public NotificationCenter {
public:
    /// Puts the question whether notifications may be shown before the user, and hands on what they say,
    /// once, on the main thread. Called on the main thread, at most once in the life of the queue unless it
    /// goes unanswered.
    using Question = std::function<void(std::function<void(bool granted)> answer)>;

    /// `queue` belongs to the center from now on, and must outlive it with the others. `calendar` is the
    /// device's; the queue keeps days of `queueCalendar`, which is the same for every process that reads it,
    /// whatever language the process was started in. `queueChanged` tells the helper and is called on the
    /// center's thread.
    FreedesktopNotificationCenter(NotificationQueue& queue, const Calendar& calendar,
                                  const Calendar& queueCalendar, MainQueue& mainQueue, Question question,
                                  std::function<void()> queueChanged);
    FreedesktopNotificationCenter(const FreedesktopNotificationCenter&) = delete;
    FreedesktopNotificationCenter& operator=(const FreedesktopNotificationCenter&) = delete;

    /// Drops what has not been begun, completions included.
    ~FreedesktopNotificationCenter() override;

    void requestAuthorization(int options,
                              std::function<void(bool granted, Outcome error)> completion) override;
    void getNotificationSettings(std::function<void(AuthorizationStatus)> completion) override;
    void getPendingNotificationRequests(
        std::function<void(const std::vector<NotificationRequest>&)> completion) override;
    void add(NotificationRequest request, std::function<void(Outcome error)> completion) override;
    void removePendingNotificationRequests(std::vector<std::string> identifiers) override;

    /// The user's answer, given or changed outside the question.
    void setAuthorization(bool granted);

    /// Does all that was asked so far, completions and what they ask included, and then nothing more. To be
    /// called while all that completions reach still stands.
    void finish();

private:
    using AuthorizationCompletion = std::function<void(bool granted, Outcome error)>;
    enum class State { Running, Finishing, Dropping };

    void post(std::function<void()> work);
    void end(State how);
    void work();
    [[nodiscard]] std::function<void()> nextWork();
    void ask();
    [[nodiscard]] Outcome addToQueue(const NotificationRequest& request);
    [[nodiscard]] const std::vector<NotificationRequest>& pendingRequests();

    NotificationQueue& queue_;
    const Calendar& calendar_;
    const Calendar& queueCalendar_;
    MainQueue& mainQueue_;
    Question question_;
    std::function<void()> queueChanged_;
    std::shared_ptr<FreedesktopNotificationCenter*> self_; ///< for answers, on the main thread

    std::mutex mutex_; ///< guards the two below
    std::deque<std::function<void()>> waiting_;
    State state_ = State::Running;
    std::condition_variable changed_;

    // The rest belongs to the thread.
    bool helperMustKnow_ = false;
    std::vector<AuthorizationCompletion> asking_; ///< who waits for the user
    std::shared_ptr<const QueuedRequests> listed_;
    std::vector<NotificationRequest> pending_; ///< the requests of `listed_`

    std::thread thread_;
};

} // namespace tessivo::freedesktop
