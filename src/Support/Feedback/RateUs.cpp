#include "Support/Feedback/RateUs.h"

#include "Ports/SavedSettings.h"
#include "Support/RemoteSwitches/Reachability.h"
#include "Support/SettingKeys.h"

#include <charconv>

namespace tessivo {

std::string rateUsText(const SavedSettings& settings, NetworkReachability& network) {
    const auto saved = settings.text(settingKeys::rateUs);
    return saved && Reachability::isConnected(network) ? *saved : "0";
}

std::optional<long> wholeNumber(std::string_view text) {
    if (text.starts_with('+')) {
        text.remove_prefix(1);
        if (text.starts_with('-'))
            return std::nullopt;
    }
    long value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (error != std::errc() || end != text.data() + text.size())
        return std::nullopt;
    return value;
}

} // namespace tessivo
