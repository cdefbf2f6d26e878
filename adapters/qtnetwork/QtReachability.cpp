#include "qtnetwork/QtReachability.h"

#include <QNetworkInformation>

#include <cstdint>
#include <fstream>
#include <sstream>
#include <string>

namespace tessivo {
namespace {

/// Whether the kernel has a default route for IPv4; empty where its table cannot be read.
std::optional<bool> hasDefaultRoute() {
    constexpr unsigned up = 1;
    std::ifstream table("/proc/net/route");
    std::string line;
    if (!std::getline(table, line)) // the headings
        return std::nullopt;
    while (std::getline(table, line)) {
        std::istringstream fields(line);
        std::string interface;
        std::uint32_t destination = 0;
        std::uint32_t gateway = 0;
        unsigned flags = 0;
        if (fields >> interface >> std::hex >> destination >> gateway >> flags && destination == 0 &&
            (flags & up) != 0)
            return true;
    }
    return false;
}

} // namespace

std::optional<unsigned> QtReachability::flags() {
    using State = QNetworkInformation::Reachability;
    const bool answers =
        QNetworkInformation::loadBackendByFeatures(QNetworkInformation::Feature::Reachability);
    const State state = answers ? QNetworkInformation::instance()->reachability() : State::Unknown;
    if (state != State::Unknown)
        return state == State::Disconnected ? 0U : reachable;
    const auto routed = hasDefaultRoute();
    if (!routed)
        return std::nullopt;
    return *routed ? reachable : 0U;
}

} // namespace tessivo
