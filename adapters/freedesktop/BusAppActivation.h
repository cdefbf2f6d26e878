#pragma once

#include "Reminders/AppActivation.h"
#include "freedesktop/Handles.h"

#include <filesystem>

namespace tessivo {
class Console;
}

namespace tessivo::freedesktop {

class SessionBus;

/// Activates the program by its name on the bus, which starts it where it does not run. Where the bus does
/// not know how, because nothing is installed, it starts `program` and calls it once it has its name. Bus and
/// console must outlive it and the loop's last turn.
class BusAppActivation final : public AppActivation {
public:
    /// An empty `program` is never started.
    BusAppActivation(SessionBus& bus, Console& console, std::filesystem::path program);
    BusAppActivation(const BusAppActivation&) = delete;
    BusAppActivation& operator=(const BusAppActivation&) = delete;

    void activate(const std::string& activation, const std::optional<std::string>& event) override;

private:
    struct Request {
        std::string activation;
        std::optional<std::string> event;
    };

    static int answerCame(sd_bus_message* reply, void* data, sd_bus_error*);
    static int ownerChanged(sd_bus_message* signal, void* data, sd_bus_error*);

    void call(const Request& request);
    void startProgram();

    SessionBus& bus_;
    Console& console_;
    std::filesystem::path program_;
    Request last_;
    bool isStarting_ = false; ///< `last_` waits for the program to take its name
    Owned<sd_bus_slot> nameMatch_;
    Owned<sd_bus_slot> answer_;
};

} // namespace tessivo::freedesktop
