#pragma once

#include "Ports/NamedColors.h"
#include "UnsplashPicker/UnsplashUser.h"

#include <memory>
#include <vector>

namespace tessivo::unsplash {

enum class URLKind { raw, full, regular, small, thumb };
template <>
inline constexpr std::array<std::string_view, 5> kindNames<URLKind>{"raw", "full", "regular", "small",
                                                                    "thumb"};
enum class PhotoLinkKind { own, html, download, downloadLocation };
template <>
inline constexpr std::array<std::string_view, 4> kindNames<PhotoLinkKind>{"self", "html", "download",
                                                                          "download_location"};

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

/// The photos of a list, which never change.
using Photos = std::vector<std::shared_ptr<const UnsplashPhoto>>;

} // namespace tessivo::unsplash
