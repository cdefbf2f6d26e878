#pragma once

#include "Ports/NotificationCenter.h"

#include <deque>
#include <optional>

namespace tessivo::fakes {

/// A notification center in memory. Nothing happens inline: each call waits in the center's queue until the
/// test calls `run`, so that a test decides what the program does before the answers come. It has no clock: a
/// request stays until the test lets it fire, also one whose moment has gone by. One thread.
class FakeNotificationCenter final : public NotificationCenter {
public:
    explicit FakeNotificationCenter(AuthorizationStatus status = AuthorizationStatus::NotDetermined)
        : status_(status) {}

    void requestAuthorization(int options,
                              std::function<void(bool granted, Outcome error)> completion) override;
    void getNotificationSettings(std::function<void(AuthorizationStatus)> completion) override;
    void getPendingNotificationRequests(std::function<void(const PendingRequests&)> completion) override;
    void add(NotificationRequest request, std::function<void(Outcome error)> completion) override;
    void removePendingNotificationRequests(std::vector<std::string> identifiers) override;

    /// Carries out all that waits, completions included, and what they ask for in turn.
    void run();

    /// Carries out the call that has waited longest; there must be one.
    void runNext();

    /// Calls that have not been carried out.
    [[nodiscard]] std::size_t waiting() const { return waiting_.size(); }

    /// What the user answers at once when asked. Empty (the start) leaves the question open until `answer`.
    void willAnswer(std::optional<bool> granted) { readyAnswer_ = granted; }

    /// The user answers the open question.
    void answer(bool granted);

    [[nodiscard]] bool questionIsOpen() const { return !asking_.empty(); }
    [[nodiscard]] int timesAsked() const { return timesAsked_; }
    [[nodiscard]] int askedOptions() const { return askedOptions_; }

    /// The user changes their mind on the settings page.
    void setStatus(AuthorizationStatus status) { status_ = status; }

    /// Every later add fails with `error`, until it is reset by an empty one.
    void failAdds(Outcome error) { addFailure_ = std::move(error); }

    [[nodiscard]] const std::vector<NotificationRequest>& pending() const { return pending_; }

    /// Shows the request of that identifier, which is then no longer pending.
    void fire(const std::string& identifier) { erase(identifier); }

private:
    using AuthorizationCompletion = std::function<void(bool granted, Outcome error)>;

    void erase(const std::string& identifier);
    [[nodiscard]] Outcome insert(NotificationRequest request);

    std::deque<std::function<void()>> waiting_;
    std::vector<NotificationRequest> pending_;
    PendingRequests listed_;                      ///< null when it is out of date
    std::vector<AuthorizationCompletion> asking_; ///< who waits for the user, while the question is open
    AuthorizationStatus status_;
    std::optional<bool> readyAnswer_;
    Outcome addFailure_;
    int timesAsked_ = 0;
    int askedOptions_ = 0;
};

} // namespace tessivo::fakes
