#pragma once

#include "Ports/Error.h"
#include "Ports/Json.h"
#include "UnsplashPicker/UnsplashPhoto.h"

#include <vector>

namespace tessivo::unsplash {

/// The domain of errors in what a document says, as opposed to how it is written.
inline constexpr auto decodingErrorDomain = "Decoding";

/// A photo from its JSON object. A required key that is missing or of the wrong type is an error that names
/// it; optional fields that do not read stay empty; addresses that are none are left out of their map.
[[nodiscard]] Result<UnsplashPhoto> decodePhoto(const JsonValue& json);

/// A list of photos; one that fails fails the list.
[[nodiscard]] Result<std::vector<UnsplashPhoto>> decodePhotos(const JsonValue& json);

[[nodiscard]] JsonValue encodePhoto(const UnsplashPhoto& photo);

} // namespace tessivo::unsplash
