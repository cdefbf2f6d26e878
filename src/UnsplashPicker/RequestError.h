#pragma once

#include "Ports/Error.h"

namespace tessivo::unsplash {

/// The request layer's own errors; those of the network or a decoder are passed on unchanged.
namespace RequestError {

[[nodiscard]] Error http(int status);
[[nodiscard]] Error invalidURL();
[[nodiscard]] Error noHTTPResponse();
[[nodiscard]] Error invalidJSONResponse();

} // namespace RequestError

/// The error for a status that is neither a success nor the caller's fault.
[[nodiscard]] Error networkServiceError(int status);

} // namespace tessivo::unsplash
