#pragma once

#include "Ports/NotificationQueue.h"

#include <map>

namespace tessivo::fakes {

/// What instances of `FakeNotificationQueue` share, as processes share a disk.
struct QueueDisk {
    std::shared_ptr<const QueuedRequests> pending = std::make_shared<QueuedRequests>();
    struct Shown {
        std::string token;
        std::string identifier;
    };
    std::map<std::int64_t, Shown> ledger; ///< by sequence
    AuthorizationStatus authorization = AuthorizationStatus::NotDetermined;
    std::int64_t last = 0;
    bool hasLoss = false;
    Outcome readFailure;  ///< every read fails with it while it is set
    Outcome writeFailure; ///< every change fails with it while it is set
};

/// A notification queue in memory that can be made to fail.
class FakeNotificationQueue final : public NotificationQueue {
public:
    explicit FakeNotificationQueue(QueueDisk& disk) : disk_(disk) {}

    Result<std::shared_ptr<const QueuedRequests>> pending() override;
    Outcome add(const NotificationRequest& request) override;
    Outcome remove(const std::vector<std::string>& identifiers) override;
    Outcome retire(const std::vector<std::int64_t>& sequences, const std::string& token,
                   Instant when) override;
    std::vector<std::string> shownIn(const std::string& token) override;
    Result<AuthorizationStatus> authorization() override;
    Outcome setAuthorization(AuthorizationStatus status) override;
    Result<bool> hasLoss() override;
    Outcome clearLoss() override;

private:
    QueueDisk& disk_;
};

} // namespace tessivo::fakes
