#pragma once

#include "Ports/Error.h"

#include <filesystem>

struct sqlite3;

namespace tessivo::sqlite {

struct Schema;

/// What the connection says of its last failure.
[[nodiscard]] Error lastError(sqlite3* connection);

/// An open, examined, configured connection to `file`, which the caller closes; see `Database::open`.
[[nodiscard]] Result<sqlite3*> openDatabase(const std::filesystem::path& file, const Schema& schema);

} // namespace tessivo::sqlite
