#pragma once

#include "Ports/NotificationQueue.h"
#include "Reminders/NotificationDisplay.h"

namespace tessivo {

/// The notification of one request.
[[nodiscard]] Notice noticeOf(const NotificationContent& content);

/// One notification for all of `requests` (not empty), which it lists in their order as far as there is room.
/// Its words are those of the requests, so that it needs no translation.
[[nodiscard]] Notice groupedNotice(const QueuedRequests& requests);

} // namespace tessivo
