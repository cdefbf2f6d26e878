#pragma once

#include "Ports/NetworkReachability.h"

namespace tessivo {

/// The network's state as Qt hears it from NetworkManager or GLib's monitor; where none of them tells, the
/// kernel's routing table decides. Needs a running Qt application.
class QtReachability final : public NetworkReachability {
public:
    [[nodiscard]] std::optional<unsigned> flags() override;
};

} // namespace tessivo
