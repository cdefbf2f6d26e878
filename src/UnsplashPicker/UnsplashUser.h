#pragma once

#include "Ports/Url.h"

#include <array>
#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <string_view>

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

} // namespace tessivo::unsplash
