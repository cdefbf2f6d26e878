#pragma once

#include "Ports/NotificationQueue.h"
#include "sqlite/Database.h"

#include <optional>

namespace tessivo::sqlite {

/// The tables of the queue of reminders.
extern const Schema queueSchema;

/// Reads all requests in the order of adding; `readRequest` takes its columns.
extern const char* const selectRequests;
/// Reads the request whose sequence number is the first parameter.
extern const char* const selectRequest;
/// Adds the request that `bindRequest` has bound; one with the same identifier gives way.
extern const char* const insertRequest;

[[nodiscard]] QueuedRequest readRequest(const Statement& row);

/// Without a sequence number the table gives one.
void bindRequest(Statement& row, const NotificationRequest& request,
                 std::optional<std::int64_t> sequence = std::nullopt);

} // namespace tessivo::sqlite
