#pragma once

#include "Ports/RemoteNotifications.h"

namespace tessivo {

/// A Linux desktop has no push service.
class NoRemoteNotifications final : public RemoteNotifications {
public:
    void onRegistration(std::function<void(const DeviceToken&)>) override {}
    void registerForRemoteNotifications() override {}
};

} // namespace tessivo
