#pragma once

#include "Ports/NamedColors.h"
#include "Ports/Url.h"

#include <array>
#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tessivo::unsplash {

/// The service's words for the kinds of a map, in the order of the kinds.
template <class Kind>
inline constexpr std::array<std::string_view, 0> kindNames{};

template <class Kind>
[[nodiscard]] constexpr std::string_view nameOf(Kind kind) {
    return kindNames<Kind>[static_cast<std::size_t>(kind)];
}

enum class ProfileImageSize { small, medium, large };
template <>
inline constexpr std::array<std::string_view, 3> kindNames<ProfileImageSize>{"small", "medium", "large"};
enum class UserLinkKind { html, photos, likes, portfolio };
template <>
inline constexpr std::array<std::string_view, 4> kindNames<UserLinkKind>{"html", "photos", "likes",
                                                                         "portfolio"};

/// A photographer.
struct UnsplashUser {
    using LinkKind = UserLinkKind;

    std::string identifier;
    std::string username;
    std::optional<std::string> firstName;
    std::optional<std::string> lastName;
    std::optional<std::string> name;
    std::map<ProfileImageSize, Url> profileImage;
    std::optional<std::string> bio;
    std::map<LinkKind, Url> links;
    std::optional<std::string> location;
    std::optional<Url> portfolioURL;
    std::int64_t totalCollections = 0;
    std::int64_t totalLikes = 0;
    std::int64_t totalPhotos = 0;

    friend bool operator==(const UnsplashUser&, const UnsplashUser&) = default;
};

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
