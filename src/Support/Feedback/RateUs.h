#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace tessivo {

class NetworkReachability;
class SavedSettings;

/// The remote choice of how the user is asked to rate the program: the saved text, "0" where there is none or
/// the device is not connected.
[[nodiscard]] std::string rateUsText(const SavedSettings& settings, NetworkReachability& network);

/// `text` as a whole number: an optional sign and digits; empty for anything else, and for what does not fit.
[[nodiscard]] std::optional<long> wholeNumber(std::string_view text);

} // namespace tessivo
