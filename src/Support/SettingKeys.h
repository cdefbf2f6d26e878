#pragma once

#include <string_view>

namespace tessivo::settingKeys {

/// Index of the tab that is shown first: 0 Past, 1 Future.
inline constexpr std::string_view defaultScreen = "DefaultScreen";
/// Size of the cards: 0 small, 1 medium, 2 large.
inline constexpr std::string_view eventSize = "EventSize";
/// Counts the launches until the rating prompt has had its turn.
inline constexpr std::string_view secondOpen = "SecondOpen";
/// True once the tabs have been shown: the first-run tour is over.
inline constexpr std::string_view isFirstLaunch = "isFirstLaunch";
/// The remote choice of the rating prompt, as a text: "0" or "1".
inline constexpr std::string_view rateUs = "rateUs";
/// A remote switch that no screen reads.
inline constexpr std::string_view adsShow = "adsShow";

} // namespace tessivo::settingKeys
