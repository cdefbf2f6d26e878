#pragma once

#include "Ports/Error.h"
#include "freedesktop/Handles.h"

#include <functional>
#include <string>
#include <string_view>

namespace tessivo::freedesktop {

class SessionBus;

/// Whether version `left` ("1.10.2") comes after `right`. A part that is not a number counts as 0.
[[nodiscard]] bool isNewerVersion(std::string_view left, std::string_view right);

/// The helper's place on the bus: at most one process has it, and only that one shows reminders. The bus must
/// outlive it.
///
/// A newer helper that finds an older one in its place asks it to hand over, queues for the name on the bus,
/// and begins when it gets it, whether the older one has finished or died.
class ReminderService final {
public:
    /// Called on the loop's thread.
    struct Events {
        std::function<void()> begun;        ///< this process has the place now
        std::function<void()> queueChanged; ///< the program has changed the queue
        std::function<void()> handOver;     ///< a newer helper waits for this one to end
    };

    ReminderService(SessionBus& bus, std::string version, Events events);
    ReminderService(const ReminderService&) = delete;
    ReminderService& operator=(const ReminderService&) = delete;

    /// Asks for the place. True if it is granted, or will be; false if an equally new helper has it. `begun`
    /// is called in a later turn of the loop.
    [[nodiscard]] Result<bool> claim();

private:
    static int queueChanged(sd_bus_message* call, void* data, sd_bus_error*);
    static int handOver(sd_bus_message* call, void* data, sd_bus_error*);
    static int nameAcquired(sd_bus_message* signal, void* data, sd_bus_error*);

    [[nodiscard]] bool ownerHandsOver();

    static const sd_bus_vtable vtable[];

    SessionBus& bus_;
    std::string version_;
    Events events_;
    Owned<sd_bus_slot> object_;
    Owned<sd_bus_slot> acquired_;
};

/// Notifies the helper that the queue has changed, and starts it if it is not running: over the bus, or,
/// where nothing is installed, from the build that this program is of. Does nothing without a session bus.
/// Not for the main thread: it waits until the helper has answered.
void tellReminderHelper();

} // namespace tessivo::freedesktop
