#pragma once

#include "Reminders/AppActivation.h"

namespace tessivo {
class Console;
}

namespace tessivo::freedesktop {

class SessionBus;

/// Activates the program by its name on the bus, which starts it where it does not run. Bus and console must
/// outlive it and the loop's last turn.
class BusAppActivation final : public AppActivation {
public:
    BusAppActivation(SessionBus& bus, Console& console) : bus_(bus), console_(console) {}

    void activate(const std::string& activation) override;

private:
    SessionBus& bus_;
    Console& console_;
};

} // namespace tessivo::freedesktop
