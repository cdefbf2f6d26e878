#pragma once

#include "Ports/Calendar.h"
#include "Ports/Error.h"

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace tessivo {

enum class AuthorizationStatus { NotDetermined = 0, Denied = 1, Authorized = 2 };

/// What a notification may do, as bits that add up.
enum AuthorizationOption : int { AuthorizeBadge = 1, AuthorizeSound = 2, AuthorizeAlert = 4 };

struct NotificationContent {
    std::string title;
    std::string body;
    bool defaultSound = true;

    friend bool operator==(const NotificationContent&, const NotificationContent&) = default;
};

/// Fires when the device's present calendar and time zone show these components.
struct CalendarTrigger {
    DateComponents dateComponents;
    bool repeats = false;

    friend bool operator==(const CalendarTrigger&, const CalendarTrigger&) = default;
};

struct NotificationRequest {
    std::string identifier;
    NotificationContent content;
    CalendarTrigger trigger;

    friend bool operator==(const NotificationRequest&, const NotificationRequest&) = default;
};

/// A list that never changes; never null.
using PendingRequests = std::shared_ptr<const std::vector<NotificationRequest>>;

/// The machine's queue of pending notifications: one request per identifier, kept over restarts, shown when
/// its time has come whether the program runs or not. All operations return at once, in any order of threads;
/// completions run in the order of the calls on a queue of the center's own, never inline and never on the
/// main thread; only an authorization that waits for the user is answered later, and it holds up nothing. A
/// completion that is dropped with the program is not called.
class NotificationCenter {
public:
    virtual ~NotificationCenter() = default;

    /// Asks the user, once; later calls hand on the remembered answer. `options` adds up
    /// `AuthorizationOption`s.
    virtual void requestAuthorization(int options,
                                      std::function<void(bool granted, Outcome error)> completion) = 0;

    virtual void getNotificationSettings(std::function<void(AuthorizationStatus)> completion) = 0;

    /// All requests that have not fired yet, in the order in which they were added; as long as nothing has
    /// changed, the same list again. A queue that cannot be read gives an empty one.
    virtual void getPendingNotificationRequests(std::function<void(const PendingRequests&)> completion) = 0;

    /// Queues the request on disk; one with the same identifier is replaced. Fails while the user denies
    /// notifications, on components that name no moment, and where the queue cannot be written. A moment that
    /// has gone by when the request is added never fires: the request is not pending, and neither is the one
    /// that it replaces. One that comes while no program runs is shown at the next start.
    virtual void add(NotificationRequest request, std::function<void(Outcome error)> completion) = 0;

    /// Takes the requests of these identifiers from the queue; unknown ones are ignored.
    virtual void removePendingNotificationRequests(std::vector<std::string> identifiers) = 0;
};

} // namespace tessivo
