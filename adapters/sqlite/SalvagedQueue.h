#pragma once

#include "Ports/NotificationQueue.h"

#include <filesystem>

namespace tessivo::sqlite {

/// What can still be read of a damaged queue.
struct SalvagedQueue {
    QueuedRequests requests;
    AuthorizationStatus authorization = AuthorizationStatus::NotDetermined;
};

/// Reads `file`, with what lies beside it, row by row: a page that cannot be read costs its own rows only.
/// Never fails; of a file that is no queue nothing is read.
[[nodiscard]] SalvagedQueue salvageQueue(const std::filesystem::path& file);

} // namespace tessivo::sqlite
