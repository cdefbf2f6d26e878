#pragma once

#include <optional>

namespace tessivo {

/// What the machine knows of its way into the network. Main thread.
class NetworkReachability {
public:
    virtual ~NetworkReachability() = default;

    static constexpr unsigned reachable = 2;          ///< there is a way out
    static constexpr unsigned connectionRequired = 4; ///< which must be dialled first

    /// The flags for the zero IPv4 address, which stands for any; empty where the machine cannot tell. Sends
    /// nothing and does not wait.
    [[nodiscard]] virtual std::optional<unsigned> flags() = 0;
};

} // namespace tessivo
