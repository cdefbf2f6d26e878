#pragma once

#include "Ports/Url.h"

#include <cstdint>
#include <map>
#include <optional>
#include <string>

namespace tessivo::unsplash {

enum class ProfileImageSize { small, medium, large };
enum class UserLinkKind { html, photos, likes, portfolio };

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

} // namespace tessivo::unsplash
