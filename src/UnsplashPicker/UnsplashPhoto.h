#pragma once

#include "Ports/NamedColors.h"
#include "UnsplashPicker/UnsplashUser.h"

namespace tessivo::unsplash {

enum class URLKind { raw, full, regular, small, thumb };
enum class PhotoLinkKind { own, html, download, downloadLocation };

/// What the camera wrote, all as text.
struct UnsplashPhotoExif {
    std::string aperture;
    std::string exposureTime;
    std::string focalLength;
    std::string iso;
    std::string make;
    std::string model;

    friend bool operator==(const UnsplashPhotoExif&, const UnsplashPhotoExif&) = default;
};

/// One photo of the service. The picture itself lies at the addresses in `urls`.
struct UnsplashPhoto {
    using LinkKind = PhotoLinkKind;

    std::string identifier;
    std::int64_t height = 0;
    std::int64_t width = 0;
    std::optional<Color> color; ///< the picture's own tint
    std::optional<UnsplashPhotoExif> exif;
    UnsplashUser user;
    std::map<URLKind, Url> urls;
    std::map<LinkKind, Url> links;
    std::int64_t likesCount = 0;
    std::optional<std::int64_t> downloadsCount;
    std::optional<std::int64_t> viewsCount;

    friend bool operator==(const UnsplashPhoto&, const UnsplashPhoto&) = default;
};

} // namespace tessivo::unsplash
