#pragma once

#include "Ports/Error.h"

#include <functional>
#include <map>
#include <string>
#include <string_view>

namespace tessivo {

/// Names and what they stand for, looked up without copying the name.
using TextTable = std::map<std::string, std::string, std::less<>>;

/// Reads one JSON object whose values are all texts. Anything else, a name that comes twice included, is an
/// error that says where.
Result<TextTable> readTextTable(std::string_view json);

/// An error in the words of this adapter.
[[nodiscard]] Error jsonError(std::string description);

} // namespace tessivo
