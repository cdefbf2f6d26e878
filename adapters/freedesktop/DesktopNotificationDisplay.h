#pragma once

#include "Reminders/NotificationDisplay.h"
#include "freedesktop/Handles.h"

#include <list>
#include <string>
#include <utility>
#include <vector>

namespace tessivo::freedesktop {

class SessionBus;

/// The notification daemon of the desktop. A token names the bus, the daemon on it and the daemon's number of
/// the notification, so that the same number from another daemon is not mistaken for it. The bus must outlive
/// it.
class DesktopNotificationDisplay final : public NotificationDisplay {
public:
    explicit DesktopNotificationDisplay(SessionBus& bus);
    DesktopNotificationDisplay(const DesktopNotificationDisplay&) = delete;
    DesktopNotificationDisplay& operator=(const DesktopNotificationDisplay&) = delete;
    ~DesktopNotificationDisplay() override;

    [[nodiscard]] Subscription listen(Events events) override;
    void show(const Notice& notice, std::function<void(const Result<std::string>&)> answer) override;

private:
    using Answer = std::function<void(const Result<std::string>&)>;

    /// One notice on its way: first the daemon is asked what it can do, then the notice is handed over.
    struct Call {
        DesktopNotificationDisplay* display;
        Notice notice;
        Answer answer;
        Owned<sd_bus_slot> slot;
        std::list<Call>::iterator self;
    };

    static int capabilitiesCame(sd_bus_message* reply, void* data, sd_bus_error*);
    static int notificationCame(sd_bus_message* reply, void* data, sd_bus_error*);
    static int ownerChanged(sd_bus_message* signal, void* data, sd_bus_error*);
    static int activationTokenCame(sd_bus_message* signal, void* data, sd_bus_error*);
    static int actionWasInvoked(sd_bus_message* signal, void* data, sd_bus_error*);

    void notify(Call& call, bool readsMarkup);
    void finish(Call& call, const Result<std::string>& answer);
    [[nodiscard]] std::string tokenOf(sd_bus_message* message, unsigned number) const;

    SessionBus& bus_;
    Events events_;
    std::list<Call> calls_;
    std::vector<Owned<sd_bus_slot>> matches_;
    std::pair<unsigned, std::string> activation_; ///< the number of a notification, and the permission for it
};

} // namespace tessivo::freedesktop
