#include "AddEventVC/EventDateAndTimeViewController.h"

#include "AddEventVC/ReminderViewController.h"
#include "Event/EventDate.h"
#include "Extension/EventCardText.h"
#include "Ports/Clock.h"

namespace tessivo {

EventDateAndTimeViewController::EventDateAndTimeViewController(SharedServices& services)
    : DateAndTimeScreen(services),
      eventView(controls, "eventView", services.platform().colors, services.platform().console) {}

void EventDateAndTimeViewController::viewDidLoad() {
    buildFrame(localized("Add Day & Time"), "steps2", localized("Next"));
    buildRows();
    showEventInformation(localized("Date of event"));
    eventView.timeLabel.setStyledText(
        makeEventCardText(segmentedControl.selectedTitle(), localized("In a certain"), screen()));
}

std::string EventDateAndTimeViewController::eventTitle() const {
    return eventData ? eventData->title.value_or("") : "";
}

void EventDateAndTimeViewController::nextButtonTapped() {
    const auto next = std::make_shared<ReminderViewController>(services());
    if (!eventData)
        eventData.emplace();
    eventData->dateEvent = dayField.text();
    eventData->timeEvent = chosenTime();
    eventData->timeFormat = static_cast<std::int16_t>(segmentedControl.selectedIndex());
    eventData->repEvent = static_cast<std::int16_t>(repEvent);
    const Instant date = read(*eventData->dateEvent, eventData->timeEvent);
    currentDate = platform().clock.now();
    eventData->eventType = !isPast(date, currentDate);
    next->eventData = eventData;
    show(next);
}

} // namespace tessivo
