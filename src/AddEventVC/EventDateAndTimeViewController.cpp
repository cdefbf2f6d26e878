#include "AddEventVC/EventDateAndTimeViewController.h"

#include "AddEventVC/GradientSwitch.h"
#include "AddEventVC/ReminderViewController.h"
#include "AddEventVC/ValueTables.h"
#include "Event/CounterText.h"
#include "Event/EventDate.h"
#include "Extension/EventCardText.h"
#include "Ports/Clock.h"
#include "Ports/Console.h"

namespace tessivo {
namespace {

constexpr double repeatSheetHeight = 400;

} // namespace

EventDateAndTimeViewController::EventDateAndTimeViewController(SharedServices& services)
    : WizardScreen(services),
      currentDate(services.platform().clock.now()),
      datePicker(controls, "datePicker", ui::DatePickerMode::Date, services.platform().calendar,
                 services.platform().dateFormatters, currentDate),
      timePicker(controls, "timePicker", ui::DatePickerMode::Time, services.platform().calendar,
                 services.platform().dateFormatters, currentDate),
      eventView(controls, "eventView", services.platform().colors, services.platform().console) {}

void EventDateAndTimeViewController::viewDidLoad() {
    dateFormatter = platform().dateFormatters.make(dateFormat);
    timeFormatter = platform().dateFormatters.make(timeFormat);
    eventFormatter = platform().dateFormatters.make(fullFormat);
    buildFrame("Add Day & Time", "steps2", "Next");
    buildRows();
    bindRows();
    showEventInformation("Date of event");
    eventView.timeLabel.setStyledText(
        makeEventCardText(segmentedControl.selectedTitle(), "In a certain", screen()));
}

void EventDateAndTimeViewController::buildRows() {
    dayField.setText(dateFormatter->string(currentDate));
    timeField.setText(timeFormatter->string(currentDate));
    segmentedControl.setTitles({unitWords.begin(), unitWords.end()});
    segmentedControl.setSelectedIndex(0);
    segmentedControl.setSelectedTint(ui::ColorRef::named("color 17"));
    segmentedControl.setCornerRadius(7);
    segmentedControl.setAccessibilityName(unitsLabel.text());
    repeatButton.setImageName("chevronNext");
    repeatButton.setTint(ui::ColorRef::black());
    repeatButton.setAccessibilityName(repeatInfoLabel.text());
    addSwitchGradient(toggleSwitch, platform().colors, platform().console);
    toggleSwitch.setAccessibilityName(switcherLabel.text());
    toggleSwitch.setOn(true);

    for (ui::View* hidden : std::initializer_list<ui::View*>{&datePicker, &timePicker, &timeLabel, &timeField,
                                                             &repeatInfoLabel, &repeatLapel, &repeatButton})
        hidden->setHidden(true);
    view().addSubview(scroll);
    scroll.addSubview(contentView);
    for (ui::View* row : std::initializer_list<ui::View*>{
             &dayLabel, &dayField, &datePicker, &timeLabel, &timeField, &timePicker, &switcherLabel,
             &toggleSwitch, &repeatInfoLabel, &repeatLapel, &repeatButton, &unitsLabel, &segmentedControl,
             &eventView})
        contentView.addSubview(*row);
}

void EventDateAndTimeViewController::bindRows() {
    nextButton.addTarget(ui::PressEvent::UpInside, [this] { nextButtonTapped(); });
    repeatButton.addTarget(ui::PressEvent::UpInside, [this] { repeatButtonTapped(); });
    bindTap(dayField, [this] { daylabelTapped(); });
    bindTap(timeField, [this] { timelabelTapped(); });
    bindTap(repeatLapel, [this] { repeatButtonTapped(); });
    bindTap(contentView, [this] { tapGestureDone(); });
    datePicker.addValueChangedTarget([this] { datePickerValueChanged(); });
    timePicker.addValueChangedTarget([this] { timePickerValueChanged(); });
    segmentedControl.addValueChangedTarget([this] { segmentValueChanged(); });
    toggleSwitch.addValueChangedTarget([this] { switchValueChanged(); });
}

void EventDateAndTimeViewController::showEventInformation(const std::string& dateLine) {
    const std::string title = eventData ? eventData->title.value_or("") : "";
    eventView.eventInformationLabel.setStyledText(makeEventCardText(dateLine, title, screen()));
}

Instant EventDateAndTimeViewController::read(const std::string& day,
                                             const std::optional<std::string>& time) const {
    if (const auto date = eventDateOf(day, time, *eventFormatter, *dateFormatter))
        return *date;
    platform().console.stopProgram("The chosen date does not read: " + day);
}

Instant EventDateAndTimeViewController::chosenDate() const {
    return read(dayField.text(), toggleSwitch.isOn() ? std::nullopt : std::optional(timeField.text()));
}

bool EventDateAndTimeViewController::chosenDateIsPast() {
    currentDate = platform().clock.now();
    return isPast(chosenDate(), currentDate);
}

void EventDateAndTimeViewController::showOrHideRepeatRow(bool past) {
    repeatInfoLabel.setHidden(past);
    repeatLapel.setHidden(past);
    repeatButton.setHidden(past);
}

void EventDateAndTimeViewController::count() {
    const auto counter = counterText(chosenDate(), currentDate, segmentedControl.selectedIndex(), unitWords,
                                     platform().console);
    if (counter)
        eventView.timeLabel.setStyledText(makeEventCardText(counter->unit, counter->number, screen()));
}

void EventDateAndTimeViewController::daylabelTapped() {
    datePicker.setHidden(false);
}

void EventDateAndTimeViewController::timelabelTapped() {
    timePicker.setHidden(false);
    showOrHideRepeatRow(chosenDateIsPast());
}

void EventDateAndTimeViewController::tapGestureDone() {
    datePicker.setHidden(true);
    timePicker.setHidden(true);
    showOrHideRepeatRow(chosenDateIsPast());
}

void EventDateAndTimeViewController::datePickerValueChanged() {
    dayField.setText(dateFormatter->string(datePicker.date()));
    showEventInformation(dayField.text());
    showOrHideRepeatRow(chosenDateIsPast());
    count();
}

void EventDateAndTimeViewController::timePickerValueChanged() {
    timeField.setText(timeFormatter->string(timePicker.date()));
    showOrHideRepeatRow(chosenDateIsPast());
    count();
}

void EventDateAndTimeViewController::segmentValueChanged() {
    currentDate = platform().clock.now();
    count();
}

void EventDateAndTimeViewController::switchValueChanged() {
    const bool allDay = toggleSwitch.isOn();
    showSwitchGradient(toggleSwitch, allDay);
    timeLabel.setHidden(allDay);
    timeField.setHidden(allDay);
    if (allDay)
        timePicker.setHidden(true);
    showOrHideRepeatRow(chosenDateIsPast());
    count();
}

void EventDateAndTimeViewController::handleViewLiveTap() {
    present(TableViewController::make(window(), platform().console, dayRepeatTitles(), repEvent,
                                      weakSelf<TableViewControllerDelegate>(this), repeatSheetHeight));
}

void EventDateAndTimeViewController::didSelectValue(const std::string& title, int index) {
    repeatLapel.setText(title);
    repEvent = index;
}

void EventDateAndTimeViewController::nextButtonTapped() {
    const auto next = std::make_shared<ReminderViewController>(services());
    if (!eventData)
        eventData.emplace();
    eventData->dateEvent = dayField.text();
    eventData->timeEvent = toggleSwitch.isOn() ? std::nullopt : std::optional(timeField.text());
    eventData->timeFormat = static_cast<std::int16_t>(segmentedControl.selectedIndex());
    eventData->repEvent = static_cast<std::int16_t>(repEvent);
    const Instant date = read(*eventData->dateEvent, eventData->timeEvent);
    currentDate = platform().clock.now();
    eventData->eventType = !isPast(date, currentDate);
    next->eventData = eventData;
    show(next);
}

} // namespace tessivo
