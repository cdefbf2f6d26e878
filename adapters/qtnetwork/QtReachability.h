#pragma once

#include "Ports/NetworkReachability.h"

namespace tessivo {

/// The network's state as NetworkManager or GLib's monitor reports it to Qt; where neither does, the kernel's
/// routing table decides. Needs a running Qt application.
class QtReachability final : public NetworkReachability {
public:
    [[nodiscard]] std::optional<unsigned> flags() override;
};

} // namespace tessivo
