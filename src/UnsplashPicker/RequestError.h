#pragma once

#include "Ports/Error.h"

namespace tessivo::unsplash {

/// How a request fails of its own accord; what the network or a decoder says is handed on as it comes.
namespace RequestError {

[[nodiscard]] Error http(int status);
[[nodiscard]] Error invalidURL();
[[nodiscard]] Error noHTTPResponse();
[[nodiscard]] Error invalidJSONResponse();

} // namespace RequestError

/// The error for a status that is neither a success nor the caller's fault.
[[nodiscard]] Error networkServiceError(int status);

} // namespace tessivo::unsplash
