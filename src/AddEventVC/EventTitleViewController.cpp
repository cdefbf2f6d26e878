#include "AddEventVC/EventTitleViewController.h"

#include "AddEventVC/EventDateAndTimeViewController.h"
#include "Extension/EventCardText.h"
#include "Support/LocalizationVariables.h"

namespace tessivo {

EventTitleViewController::EventTitleViewController(SharedServices& services)
    : TitleScreen(services),
      eventView(controls, "eventView", services.platform().colors, services.platform().console),
      dateText(services.localizationVariables().dateOfEvent),
      titleText(services.localizationVariables().yourEventTitle) {}

void EventTitleViewController::viewDidLoad() {
    buildFrame(texts().eventTitle, "steps1", texts().next);
    nextButton.setEnabled(false);
    buildField("", eventView);
    showTitle(titleText);
    eventView.timeLabel.setStyledText(makeEventCardText(texts().days, texts().inACertain, screen()));
}

void EventTitleViewController::showTitle(const std::string& title) {
    eventView.eventInformationLabel.setStyledText(makeEventCardText(dateText, title, screen()));
}

void EventTitleViewController::nextButtonTapped() {
    const auto next = std::make_shared<EventDateAndTimeViewController>(services());
    eventData.title = textField.text();
    next->eventData = eventData;
    show(next);
}

} // namespace tessivo
