#pragma once

#include "processes/Process.h"
#include "support/TemporaryFolder.h"

#include <string>

namespace tessivo {

/// A desktop session of the test's own: a message bus that starts nothing by itself, a display that nobody
/// sees, a data folder. It is the session of the test's process and of all that it starts.
class PrivateSession final {
public:
    PrivateSession();

    /// Whether the machine has the programs that make up a session.
    [[nodiscard]] static bool isPossible();

    /// Starts a notification daemon and waits until it is on the bus.
    void startDaemon();
    void killDaemon() { daemon_.kill(); }

    /// Whether the daemon shows, or has shown, a notification with that title and body.
    [[nodiscard]] bool hasShown(const std::string& title, const std::string& body) const;

    [[nodiscard]] static bool isOnBus(const std::string& name);
    /// The unique name of the connection that owns `name`; empty if none does.
    [[nodiscard]] static std::string ownerOf(const std::string& name);

    /// Makes the bus start `program` when somebody calls `name`.
    void addService(const std::string& name, const std::string& program);

    [[nodiscard]] const TemporaryFolder& folder() const { return folder_; }

private:
    void startBus();
    void startDisplay();

    TemporaryFolder folder_;
    Process bus_;
    Process display_;
    Process daemon_;
};

} // namespace tessivo
