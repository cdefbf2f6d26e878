#include "AddEventVC/ReminderViewController.h"

#include "AddEventVC/EventBackgroundViewController.h"
#include "Ports/Console.h"
#include "Ports/MainQueue.h"
#include "Ports/RemoteNotifications.h"

namespace tessivo {
namespace {

constexpr int allOptions = AuthorizeBadge | AuthorizeSound | AuthorizeAlert;

} // namespace

void ReminderViewController::viewDidLoad() {
    buildFrame(localized("Add Reminder"), "steps3", localized("Next"));
    buildRows();
    askPermission();
}

void ReminderViewController::askPermission() {
    platform().notificationCenter.requestAuthorization(
        allOptions, [&platform = platform()](bool granted, const Outcome&) {
            if (!granted)
                return platform.console.print("Permission for push notifications denied.");
            platform.mainQueue.post(
                [&platform] { platform.remoteNotifications.registerForRemoteNotifications(); });
        });
}

bool ReminderViewController::eventIsAhead() const {
    return eventData && eventData->eventType.value_or(false);
}

void ReminderViewController::nextButtonTapped() {
    const auto next = std::make_shared<EventBackgroundViewController>(services());
    if (!eventData)
        eventData.emplace();
    Reminder reminder = chosenReminder();
    eventData->alertReminder = reminder.alertReminder;
    eventData->remMess = std::move(reminder.remMess);
    eventData->repReminder = reminder.repReminder;
    next->eventData = eventData;
    show(next);
}

} // namespace tessivo
