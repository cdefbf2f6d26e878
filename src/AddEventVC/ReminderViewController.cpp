#include "AddEventVC/ReminderViewController.h"

#include "AddEventVC/EventBackgroundViewController.h"
#include "Ports/Console.h"

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
        allOptions, [&console = platform().console](bool granted, const Outcome&) {
            if (!granted)
                console.print("Permission for push notifications denied.");
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
