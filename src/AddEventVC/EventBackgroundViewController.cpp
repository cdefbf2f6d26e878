#include "AddEventVC/EventBackgroundViewController.h"

#include "AddEventVC/Palette.h"
#include "Event/CoreDataStack.h"
#include "Event/CounterText.h"
#include "Event/EventDate.h"
#include "Event/ReminderScheduler.h"
#include "Extension/EventCardText.h"
#include "Ports/Clock.h"
#include "Ports/Console.h"
#include "Ports/DocumentFiles.h"
#include "Ports/Uuid.h"
#include "Support/EventImages.h"
#include "Support/LocalizationVariables.h"
#include "Support/ScreenFactory.h"

namespace tessivo {

EventBackgroundViewController::EventBackgroundViewController(SharedServices& services)
    : BackgroundScreen(services, "Solid Colors", &PickedMedia::editedImage),
      eventView(controls, "eventView", services.platform().colors, services.platform().console),
      dateFormatter(services.platform().dateFormatters.make(dateFormat)),
      eventFormatter(services.platform().dateFormatters.make(fullFormat)) {}

void EventBackgroundViewController::viewDidLoad() {
    buildFrame(localized("Background"), "steps4", texts().done);
    // Confirming at once must give a whole event, so a background is chosen from the start.
    if (!eventData)
        eventData.emplace();
    eventData->gradient = static_cast<std::int16_t>(defaultGradientRow);
    eventData->color = NO_VALUE;
    selectedGradientIndexPath = static_cast<int>(defaultGradientRow);
    buildRows();
    showDraft();
}

void EventBackgroundViewController::take(Choice choice) {
    eventData->photoPath = std::move(choice.photoPath);
    eventData->gradient = choice.gradient;
    eventData->color = choice.color;
    eventData->unsplashPath = std::move(choice.unsplashPath);
}

void EventBackgroundViewController::showDraft() {
    eventView.eventInformationLabel.setStyledText(
        makeEventCardText(eventData->dateEvent.value_or(""), eventData->title.value_or(""), screen()));
    const auto counter = counterText(eventDay(), currentDate, eventData->timeFormat.value_or(0), unitWords,
                                     platform().texts, platform().console);
    if (counter)
        eventView.timeLabel.setStyledText(makeEventCardText(counter->unit, counter->number, screen()));
}

Instant EventBackgroundViewController::eventDay() const {
    if (const auto date =
            eventDateOf(eventData->dateEvent, eventData->timeEvent, *eventFormatter, *dateFormatter))
        return *date;
    platform().console.stopProgram("The date of the new event cannot be parsed.");
}

void EventBackgroundViewController::doneButtonTapped() {
    const Instant day = eventDay();
    currentDate = platform().clock.now();
    eventData->eventType = !isPast(day, currentDate);
    if (eventData->unsplashPath) {
        services().eventImages().keepUnsplashImage(unsplashImage, *eventData->unsplashPath);
        platform().console.print(platform().documentFiles.fileExists(*eventData->unsplashPath) ? "true"
                                                                                               : "false");
    }
    eventData->id = platform().uuids.random();
    services().coreDataStack().addEvent(*eventData);
    services().reminderScheduler().finishWizard(*eventData);
    show(services().screens().makeTabShell());
}

} // namespace tessivo
