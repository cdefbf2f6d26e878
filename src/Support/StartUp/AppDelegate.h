#pragma once

#include "Ports/RemoteNotifications.h"

namespace tessivo {

class SharedServices;

namespace ui {
class PresentationStack;
}

/// The start of the program, and what the machine reports to it. Lives as long as the services.
class AppDelegate {
public:
    explicit AppDelegate(SharedServices& services) : services_(services) {}

    /// Fills absent settings, counts the launch, runs the first pass over the events and shows the first
    /// screen in `window`. Called once.
    void didFinishLaunching(ui::PresentationStack& window);

    /// Prints the token that the push service knows this device by.
    void didRegisterForRemoteNotifications(const RemoteNotifications::DeviceToken& deviceToken);

private:
    void fillAbsentSettings();
    void countLaunch();

    SharedServices& services_;
};

} // namespace tessivo
