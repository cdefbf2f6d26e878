#include "AddEventVC/EventTitleViewController.h"

#include "AddEventVC/EventDateAndTimeViewController.h"
#include "AddEventVC/Label.h"
#include "Extension/EventCardText.h"
#include "Ports/TextCounting.h"
#include "Support/LocalizationVariables.h"

namespace tessivo {

EventTitleViewController::EventTitleViewController(SharedServices& services)
    : WizardScreen(services),
      eventView(controls, "eventView", services.platform().colors, services.platform().console),
      dateText(services.localizationVariables().dateOfEvent),
      titleText(services.localizationVariables().yourEventTitle) {}

void EventTitleViewController::viewDidLoad() {
    buildFrame(texts().eventTitle, "steps1", texts().next);
    nextButton.setEnabled(false);
    nextButton.addTarget(ui::PressEvent::UpInside, [this] { nextButtonTapped(); });
    textField.setPlaceholder(texts().addTitle);
    textField.setFont({22, ui::FontWeight::Regular});
    textField.setBackgroundColor(ui::ColorRef::named("backText"));
    textField.setCornerRadius(16);
    textField.setTextInsets({10, 16, 10, 16});
    textField.delegate = weakSelf<ui::TextInputDelegate>(this);
    textField.addEditingChangedTarget([this] { textFieldDidChange(); });
    CountLabel.setStyledText(makeCounterText("Title", 0, maxLength));
    for (ui::View* part : std::initializer_list<ui::View*>{&textField, &CountLabel, &eventView})
        view().addSubview(*part);
    bindTap(view(), [this] { handleTap(); });

    showPreview(titleText);
    eventView.timeLabel.setStyledText(makeEventCardText(texts().days, texts().inACertain, screen()));
}

void EventTitleViewController::showPreview(const std::string& title) {
    eventView.eventInformationLabel.setStyledText(makeEventCardText(dateText, title, screen()));
}

bool EventTitleViewController::shouldChangeText(ui::TextInput& input, ui::TextRange range,
                                                const std::string& replacement) {
    const std::size_t count =
        platform().textCounting.characters(ui::replacing(input.text(), range, replacement));
    if (count > maxLength)
        return false;
    CountLabel.setStyledText(makeCounterText("Title", count, maxLength));
    return true;
}

bool EventTitleViewController::shouldReturn(ui::TextInput& input) {
    input.endEditing();
    return true;
}

void EventTitleViewController::textFieldDidChange() {
    showPreview(textField.text());
    nextButton.setEnabled(!textField.text().empty());
}

void EventTitleViewController::nextButtonTapped() {
    const auto next = std::make_shared<EventDateAndTimeViewController>(services());
    eventData.title = textField.text();
    next->eventData = eventData;
    show(next);
}

} // namespace tessivo
