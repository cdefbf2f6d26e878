#include "EditEventVC/EditReminderViewController.h"

#include "Event/CoreDataStack.h"
#include "Event/EventCoreData.h"
#include "Event/EventItem.h"
#include "Event/FetchEventDataType.h"
#include "Event/ReminderScheduler.h"
#include "Support/ScreenFactory.h"

namespace tessivo {

void EditReminderViewController::viewDidLoad() {
    buildFrame(localized("Edit Reminder"), "steps3", localized("Save"));
    buildRows();
    if (eventData->alertReminder() != NO_VALUE)
        fillRows({eventData->alertReminder(), eventData->repReminder(), eventData->remMess().value_or("")});
}

bool EditReminderViewController::eventIsAhead() const {
    return eventData->eventType();
}

void EditReminderViewController::nextButtonTapped() {
    Reminder reminder = chosenReminder();
    eventData->setAlertReminder(reminder.alertReminder);
    eventData->setRemMess(std::move(reminder.remMess));
    eventData->setRepReminder(reminder.repReminder);
    if (!eventData->id())
        return;
    services().coreDataStack().updateReminder(*eventData->id(), eventData->remMess(),
                                              eventData->alertReminder(), eventData->repReminder());
    services().fetchEventDataType().refreshEvents();
    if (toggleSwitch.isOn())
        services().reminderScheduler().editReminder(*eventData);
    show(services().screens().makeTabShell());
}

} // namespace tessivo
