#pragma once

#include "Ports/Error.h"
#include "Ports/Json.h"
#include "UnsplashPicker/UnsplashPhoto.h"

namespace tessivo::unsplash {

/// The domain of errors in what a document says, as opposed to how it is written.
inline constexpr auto decodingErrorDomain = "Decoding";

[[nodiscard]] Error decodingError(std::string description);

/// A photo from its JSON object. A required key that is missing or of the wrong type is an error that names
/// it; optional fields that cannot be decoded stay empty; texts that are no address are left out of their
/// map.
[[nodiscard]] Result<UnsplashPhoto> decodePhoto(const JsonValue& json);

/// A list of photos; one that fails fails the list.
[[nodiscard]] Result<Photos> decodePhotos(const JsonValue& json);

[[nodiscard]] JsonValue encodePhoto(const UnsplashPhoto& photo);

} // namespace tessivo::unsplash
