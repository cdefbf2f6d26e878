#include "AddEventVC/DateAndTimeScreen.h"

#include "AddEventVC/GradientSwitch.h"
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

DateAndTimeScreen::DateAndTimeScreen(SharedServices& services)
    : WizardScreen(services),
      currentDate(services.platform().clock.now()),
      datePicker(controls, "datePicker", ui::DatePickerMode::Date, services.platform().calendar,
                 services.platform().dateFormatters, currentDate),
      timePicker(controls, "timePicker", ui::DatePickerMode::Time, services.platform().calendar,
                 services.platform().dateFormatters, currentDate),
      dateFormatter(services.platform().dateFormatters.make(dateFormat)),
      timeFormatter(services.platform().dateFormatters.make(timeFormat)),
      eventFormatter(services.platform().dateFormatters.make(fullFormat)) {}

void DateAndTimeScreen::buildRows() {
    dayField.setText(dateFormatter->string(currentDate));
    timeField.setText(timeFormatter->string(currentDate));
    std::vector<std::string> units;
    for (const std::string_view word : unitWords)
        units.push_back(localized(word));
    segmentedControl.setTitles(std::move(units));
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
    showAllDay(true);
    showOrHideRepeatRow(true);
    datePicker.setHidden(true);
    datePicker.setWheelNames({localized("Day"), localized("Month"), localized("Year")});
    timePicker.setWheelNames({localized("Hour"), localized("Minute"), localized("AM/PM")});
    view().addSubview(scroll);
    scroll.addSubview(contentView);
    for (ui::View* row : std::initializer_list<ui::View*>{
             &dayLabel, &dayField, &datePicker, &timeLabel, &timeField, &timePicker, &switcherLabel,
             &toggleSwitch, &repeatInfoLabel, &repeatLapel, &repeatButton, &unitsLabel, &segmentedControl,
             &card()})
        contentView.addSubview(*row);
    bindRows();
}

void DateAndTimeScreen::bindRows() {
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

void DateAndTimeScreen::showEventInformation(const std::string& dateLine) {
    card().eventInformationLabel.setStyledText(makeEventCardText(dateLine, eventTitle(), screen()));
}

Instant DateAndTimeScreen::read(const std::string& day, const std::optional<std::string>& time) const {
    if (const auto date = eventDateOf(day, time, *eventFormatter, *dateFormatter))
        return *date;
    platform().console.stopProgram("The chosen date cannot be parsed: " + day);
}

std::optional<std::string> DateAndTimeScreen::chosenTime() const {
    return toggleSwitch.isOn() ? std::nullopt : std::optional(timeField.text());
}

Instant DateAndTimeScreen::chosenDate() const {
    return read(dayField.text(), chosenTime());
}

bool DateAndTimeScreen::chosenDateIsPast() {
    currentDate = platform().clock.now();
    return isPast(chosenDate(), currentDate);
}

void DateAndTimeScreen::showOrHideRepeatRow(bool past) {
    repeatInfoLabel.setHidden(past);
    repeatLapel.setHidden(past);
    repeatButton.setHidden(past);
}

void DateAndTimeScreen::count() {
    const auto counter = counterText(chosenDate(), currentDate, segmentedControl.selectedIndex(), unitWords,
                                     platform().texts, platform().console);
    if (counter)
        card().timeLabel.setStyledText(makeEventCardText(counter->unit, counter->number, screen()));
}

void DateAndTimeScreen::daylabelTapped() {
    datePicker.setHidden(false);
}

void DateAndTimeScreen::timelabelTapped() {
    timePicker.setHidden(false);
    showOrHideRepeatRow(chosenDateIsPast());
}

void DateAndTimeScreen::tapGestureDone() {
    datePicker.setHidden(true);
    timePicker.setHidden(true);
    showOrHideRepeatRow(chosenDateIsPast());
}

void DateAndTimeScreen::datePickerValueChanged() {
    dayField.setText(dateFormatter->string(datePicker.date()));
    showEventInformation(dayField.text());
    showOrHideRepeatRow(chosenDateIsPast());
    count();
}

void DateAndTimeScreen::timePickerValueChanged() {
    timeField.setText(timeFormatter->string(timePicker.date()));
    showOrHideRepeatRow(chosenDateIsPast());
    count();
}

void DateAndTimeScreen::segmentValueChanged() {
    currentDate = platform().clock.now();
    count();
}

void DateAndTimeScreen::showAllDay(bool allDay) {
    showSwitchGradient(toggleSwitch, allDay);
    timeLabel.setHidden(allDay);
    timeField.setHidden(allDay);
    if (allDay)
        timePicker.setHidden(true);
}

void DateAndTimeScreen::switchValueChanged() {
    showAllDay(toggleSwitch.isOn());
    showOrHideRepeatRow(chosenDateIsPast());
    count();
}

void DateAndTimeScreen::handleViewLiveTap() {
    present(TableViewController::make(window(), platform().console, repeatInfoLabel.text(),
                                      dayRepeatTitles(platform().texts), repEvent,
                                      weakSelf<TableViewControllerDelegate>(this), repeatSheetHeight));
}

void DateAndTimeScreen::didSelectValue(const std::string& title, int index) {
    repeatLapel.setText(title);
    repEvent = index;
}

} // namespace tessivo
