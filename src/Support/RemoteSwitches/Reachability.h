#pragma once

#include "Ports/NetworkReachability.h"

namespace tessivo {

/// Whether the device is connected at all.
class Reachability final {
public:
    /// True where there is a way into the network that need not be dialled first.
    [[nodiscard]] static bool isConnected(NetworkReachability& network) {
        const auto flags = network.flags();
        return flags && (*flags & NetworkReachability::reachable) != 0 &&
               (*flags & NetworkReachability::connectionRequired) == 0;
    }
};

} // namespace tessivo
