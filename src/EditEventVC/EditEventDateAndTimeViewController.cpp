#include "EditEventVC/EditEventDateAndTimeViewController.h"

#include "AddEventVC/ValueTables.h"
#include "Event/CoreDataStack.h"
#include "Event/EventCoreData.h"
#include "Event/EventDate.h"
#include "Event/FetchEventDataType.h"
#include "Event/ReminderScheduler.h"
#include "Ports/Clock.h"
#include "Ports/Console.h"
#include "Support/ScreenFactory.h"

namespace tessivo {

EditEventDateAndTimeViewController::EditEventDateAndTimeViewController(SharedServices& services)
    : DateAndTimeScreen(services), eventView(controls, "eventTimeLabel", services) {}

void EditEventDateAndTimeViewController::viewDidLoad() {
    buildFrame(localized("Edit Day & Time"), "steps2", localized("Save"));
    buildRows();
    eventView.show(*eventData, currentDate);
    fillRows();
}

void EditEventDateAndTimeViewController::fillRows() {
    const auto repeats = dayRepeatTitles(platform().texts);
    const auto repeat = static_cast<std::size_t>(eventData->repEvent());
    if (repeat >= repeats.size())
        platform().console.stopProgram("There is no repeat " + std::to_string(eventData->repEvent()) + ".");
    repEvent = eventData->repEvent();
    repeatLapel.setText(repeats[repeat]);
    segmentedControl.setSelectedIndex(eventData->timeFormat());
    dayField.setText(*eventData->dateEvent());
    const bool allDay = eventData->timeEvent().value_or("").empty();
    if (!allDay)
        timeField.setText(*eventData->timeEvent());
    toggleSwitch.setOn(allDay);
    showAllDay(allDay);
    showOrHideRepeatRow(isPast(chosenDate(), currentDate));
}

std::string EditEventDateAndTimeViewController::eventTitle() const {
    return *eventData->title();
}

void EditEventDateAndTimeViewController::daylabelTapped() {
    datePicker.setDate(read(dayField.text(), std::nullopt));
    DateAndTimeScreen::daylabelTapped();
}

void EditEventDateAndTimeViewController::timelabelTapped() {
    timePicker.setDate(read(dayField.text(), timeField.text()));
    DateAndTimeScreen::timelabelTapped();
}

void EditEventDateAndTimeViewController::nextButtonTapped() {
    eventData->setDateEvent(dayField.text());
    currentDate = platform().clock.now();
    eventData->setTimeEvent(chosenTime());
    const Instant eventDay = chosenDate();
    eventData->setEventType(!isPast(eventDay, currentDate));
    eventData->setTimeFormat(static_cast<std::int16_t>(segmentedControl.selectedIndex()));
    eventData->setRepEvent(static_cast<std::int16_t>(repEvent));
    if (!eventData->id())
        return;
    services().coreDataStack().updateDateAndTime(*eventData->id(), eventData->dateEvent(),
                                                 eventData->timeEvent(), eventData->timeFormat(),
                                                 eventData->repEvent(), eventData->eventType());
    services().reminderScheduler().editDateAndTime(*eventData);
    services().fetchEventDataType().refreshEvents();
    show(services().screens().makeTabShell());
}

} // namespace tessivo
