#include "fakes/FakeNotificationQueue.h"

#include <algorithm>

namespace tessivo::fakes {
namespace {

QueuedRequests without(const QueuedRequests& requests, const std::vector<std::string>& identifiers) {
    auto left = requests;
    std::erase_if(left, [&](const QueuedRequest& queued) {
        return std::ranges::find(identifiers, queued.request.identifier) != identifiers.end();
    });
    return left;
}

} // namespace

Result<std::shared_ptr<const QueuedRequests>> FakeNotificationQueue::pending() {
    if (disk_.readFailure)
        return *disk_.readFailure;
    return disk_.pending;
}

Outcome FakeNotificationQueue::add(const NotificationRequest& request) {
    if (disk_.writeFailure)
        return disk_.writeFailure;
    auto requests = without(*disk_.pending, {request.identifier});
    requests.push_back({++disk_.last, request});
    disk_.pending = std::make_shared<QueuedRequests>(std::move(requests));
    return {};
}

Outcome FakeNotificationQueue::remove(const std::vector<std::string>& identifiers) {
    if (disk_.writeFailure)
        return disk_.writeFailure;
    disk_.pending = std::make_shared<QueuedRequests>(without(*disk_.pending, identifiers));
    return {};
}

Outcome FakeNotificationQueue::retire(const std::vector<std::int64_t>& sequences, const std::string& token,
                                      Instant) {
    if (disk_.writeFailure)
        return disk_.writeFailure;
    QueuedRequests left;
    for (const auto& queued : *disk_.pending) {
        if (std::ranges::find(sequences, queued.sequence) == sequences.end())
            left.push_back(queued);
        else
            disk_.ledger[queued.sequence] = {token, queued.request.identifier};
    }
    disk_.pending = std::make_shared<QueuedRequests>(std::move(left));
    return {};
}

std::vector<std::string> FakeNotificationQueue::shownIn(const std::string& token) {
    std::vector<std::string> identifiers;
    for (const auto& [sequence, shown] : disk_.ledger) {
        if (!token.empty() && !disk_.readFailure && shown.token == token)
            identifiers.push_back(shown.identifier);
    }
    return identifiers;
}

Result<bool> FakeNotificationQueue::hasLoss() {
    if (disk_.readFailure)
        return *disk_.readFailure;
    return disk_.hasLoss;
}

Outcome FakeNotificationQueue::clearLoss() {
    if (disk_.writeFailure)
        return disk_.writeFailure;
    disk_.hasLoss = false;
    return {};
}

Result<AuthorizationStatus> FakeNotificationQueue::authorization() {
    if (disk_.readFailure)
        return *disk_.readFailure;
    return disk_.authorization;
}

Outcome FakeNotificationQueue::setAuthorization(AuthorizationStatus status) {
    if (disk_.writeFailure)
        return disk_.writeFailure;
    disk_.authorization = status;
    return {};
}

} // namespace tessivo::fakes
