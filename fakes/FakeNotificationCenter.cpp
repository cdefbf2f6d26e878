#include "fakes/FakeNotificationCenter.h"

#include <stdexcept>
#include <utility>

namespace tessivo::fakes {

void FakeNotificationCenter::requestAuthorization(int options, AuthorizationCompletion completion) {
    waiting_.emplace_back([this, options, completion = std::move(completion)] {
        if (status_ != AuthorizationStatus::NotDetermined) {
            completion(status_ == AuthorizationStatus::Authorized, {});
            return;
        }
        asking_.push_back(completion);
        if (asking_.size() > 1)
            return;
        ++timesAsked_;
        askedOptions_ = options;
        if (readyAnswer_)
            answer(*readyAnswer_);
    });
}

void FakeNotificationCenter::answer(bool granted) {
    if (asking_.empty())
        throw std::logic_error("No question is open");
    status_ = granted ? AuthorizationStatus::Authorized : AuthorizationStatus::Denied;
    for (auto& completion : std::exchange(asking_, {}))
        waiting_.emplace_back([completion, granted] { completion(granted, {}); });
}

void FakeNotificationCenter::getNotificationSettings(std::function<void(AuthorizationStatus)> completion) {
    waiting_.emplace_back([this, completion = std::move(completion)] { completion(status_); });
}

void FakeNotificationCenter::getPendingNotificationRequests(
    std::function<void(const PendingRequests&)> completion) {
    waiting_.emplace_back([this, completion = std::move(completion)] {
        if (!listed_)
            listed_ = std::make_shared<const std::vector<NotificationRequest>>(pending_);
        completion(PendingRequests(listed_));
    });
}

void FakeNotificationCenter::add(NotificationRequest request, std::function<void(Outcome error)> completion) {
    waiting_.emplace_back([this, request = std::move(request), completion = std::move(completion)]() mutable {
        completion(insert(std::move(request)));
    });
}

void FakeNotificationCenter::removePendingNotificationRequests(std::vector<std::string> identifiers) {
    waiting_.emplace_back([this, identifiers = std::move(identifiers)] {
        for (const auto& identifier : identifiers)
            erase(identifier);
    });
}

void FakeNotificationCenter::run() {
    while (!waiting_.empty())
        runNext();
}

void FakeNotificationCenter::runNext() {
    const auto work = std::move(waiting_.front());
    waiting_.pop_front();
    work();
}

void FakeNotificationCenter::erase(const std::string& identifier) {
    listed_.reset();
    std::erase_if(pending_, [&](const auto& request) { return request.identifier == identifier; });
}

Outcome FakeNotificationCenter::insert(NotificationRequest request) {
    if (addFailure_)
        return addFailure_;
    if (status_ == AuthorizationStatus::Denied)
        return Error{"NotificationCenter", 1, "Notifications are not allowed"};
    erase(request.identifier);
    pending_.push_back(std::move(request));
    return {};
}

} // namespace tessivo::fakes
