#pragma once

#include "UnsplashPicker/UnsplashPhoto.h"

#include <array>
#include <string_view>

namespace tessivo::unsplash {

/// The service's words for the kinds of a map, in the order of the kinds.
template <class Kind>
inline constexpr std::array<std::string_view, 0> kindNames{};

template <>
inline constexpr std::array<std::string_view, 5> kindNames<URLKind>{"raw", "full", "regular", "small",
                                                                    "thumb"};
template <>
inline constexpr std::array<std::string_view, 4> kindNames<PhotoLinkKind>{"self", "html", "download",
                                                                          "download_location"};
template <>
inline constexpr std::array<std::string_view, 3> kindNames<ProfileImageSize>{"small", "medium", "large"};
template <>
inline constexpr std::array<std::string_view, 4> kindNames<UserLinkKind>{"html", "photos", "likes",
                                                                         "portfolio"};

template <class Kind>
[[nodiscard]] constexpr std::string_view nameOf(Kind kind) {
    return kindNames<Kind>[static_cast<std::size_t>(kind)];
}

} // namespace tessivo::unsplash
