#pragma once

#include <cstdint>
#include <functional>
#include <vector>

namespace tessivo {

/// The machine's push service, through which a server reaches this device. Main thread.
class RemoteNotifications {
public:
    virtual ~RemoteNotifications() = default;

    /// What the service knows this device by.
    using DeviceToken = std::vector<std::uint8_t>;

    /// Who hears of each registration that succeeds, in a later turn of the main loop. Replaces an earlier
    /// listener.
    virtual void onRegistration(std::function<void(const DeviceToken&)> registered) = 0;

    /// Asks the service for a token; safe to repeat. Where there is no such service nothing follows.
    virtual void registerForRemoteNotifications() = 0;
};

} // namespace tessivo
