#pragma once

#include "Ports/NotificationCenter.h"

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace tessivo {

/// A request in the queue. Its sequence number is given once and never again: a request that replaces another
/// has one of its own, so that what is said of the old one cannot strike the new one.
struct QueuedRequest {
    std::int64_t sequence = 0;
    NotificationRequest request;

    friend bool operator==(const QueuedRequest&, const QueuedRequest&) = default;
};

using QueuedRequests = std::vector<QueuedRequest>;

/// Requests on disk, a ledger of those that were shown, and the user's answer to whether they may be. Any
/// number of processes share it, each through an instance of its own; an instance belongs to one thread. When
/// a change returns without an error it survives a loss of power; one that fails has changed nothing.
class NotificationQueue {
public:
    virtual ~NotificationQueue() = default;

    /// What has not been retired or removed, in the order of adding; never null. As long as nothing has
    /// changed, the same list again.
    [[nodiscard]] virtual Result<std::shared_ptr<const QueuedRequests>> pending() = 0;

    /// Adds to the end. A pending request with the same identifier gives way.
    [[nodiscard]] virtual Outcome add(const NotificationRequest& request) = 0;

    /// Unknown identifiers are ignored.
    [[nodiscard]] virtual Outcome remove(const std::vector<std::string>& identifiers) = 0;

    /// Moves the requests of these sequence numbers, as many as are still pending, into the ledger: they came
    /// before the user at `when` in the notification that `token` names. An empty token says that they went
    /// by unseen. The ledger forgets its oldest entries in time.
    [[nodiscard]] virtual Outcome retire(const std::vector<std::int64_t>& sequences, const std::string& token,
                                         Instant when) = 0;

    /// The identifiers of the requests that were shown in the notification of that token, in the order of
    /// adding; none where the ledger knows no such notification or cannot be read.
    [[nodiscard]] virtual std::vector<std::string> shownIn(const std::string& token) = 0;

    [[nodiscard]] virtual Result<AuthorizationStatus> authorization() = 0;
    [[nodiscard]] virtual Outcome setAuthorization(AuthorizationStatus status) = 0;

    /// Whether requests may have been lost with a damaged queue. That stands, over restarts too, until
    /// `clearLoss` says that it has been made good.
    [[nodiscard]] virtual Result<bool> hasLoss() = 0;
    [[nodiscard]] virtual Outcome clearLoss() = 0;
};

} // namespace tessivo
