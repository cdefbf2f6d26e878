#include "AddEventVC/ReminderViewController.h"

#include "AddEventVC/EventBackgroundViewController.h"
#include "AddEventVC/GradientSwitch.h"
#include "AddEventVC/ValueTables.h"
#include "Extension/EventCardText.h"
#include "Interface/AlertController.h"
#include "Ports/Console.h"
#include "Ports/MainQueue.h"
#include "Ports/TextCounting.h"
#include "Support/LocalizationVariables.h"
#include "Support/ScreenFactory.h"

namespace tessivo {
namespace {

const std::string placeholderText = "Add Message";
constexpr double repeatSheetHeight = 350;
constexpr double alertSheetHeight = 550;
constexpr int allOptions = AuthorizeBadge | AuthorizeSound | AuthorizeAlert;

} // namespace

void ReminderViewController::viewDidLoad() {
    buildFrame("Add Reminder", "steps3", "Next");
    nextButton.addTarget(ui::PressEvent::UpInside, [this] { nextButtonTapped(); });
    buildRows();
    bindTap(view(), [this] { handleTap(); });
    askPermission();
}

void ReminderViewController::buildRows() {
    addSwitchGradient(toggleSwitch, platform().colors, platform().console);
    toggleSwitch.setAccessibilityName(reminderLabel.text());
    toggleSwitch.addValueChangedTarget([this] { switchValueChanged(); });
    reminderMess.setText(placeholderText);
    reminderMess.setTextColor(ui::ColorRef::named("disabled"));
    reminderMess.setBackgroundColor(ui::ColorRef::named("backText"));
    reminderMess.setCornerRadius(16);
    reminderMess.setTextInsets({10, 16, 10, 16});
    reminderMess.setAccessibilityName("Reminder Message");
    reminderMess.delegate = weakSelf<ui::TextInputDelegate>(this);
    CountLabel.setStyledText(makeCounterText("Reminder Message", 0, maxLength));
    for (auto* button : {&repeatButton, &alertButton}) {
        button->setImageName("chevronNext");
        button->setTint(ui::ColorRef::black());
    }
    repeatButton.setAccessibilityName(repeatInfoLabel.text());
    alertButton.setAccessibilityName(alertInfoLabel.text());
    repeatButton.addTarget(ui::PressEvent::UpInside, [this] { repeatButtonTapped(); });
    alertButton.addTarget(ui::PressEvent::UpInside, [this] { alertButtonTapped(); });
    for (ui::View* row : std::initializer_list<ui::View*>{
             &reminderInfoLabel, &reminderLabel, &toggleSwitch, &alertInfoLabel, &alertlabel, &alertButton,
             &repeatInfoLabel, &repeatLabel, &repeatButton, &CountLabel, &reminderMess})
        view().addSubview(*row);
    hideRows();
}

std::weak_ptr<ReminderViewController> ReminderViewController::weakThis() {
    return std::static_pointer_cast<ReminderViewController>(shared_from_this());
}

void ReminderViewController::askPermission() {
    platform().notificationCenter.requestAuthorization(
        allOptions, [&console = platform().console](bool granted, const Outcome&) {
            if (!granted)
                console.print("Permission for push notifications denied.");
        });
}

void ReminderViewController::switchValueChanged() {
    platform().notificationCenter.getNotificationSettings(
        [weak = weakThis(), &mainQueue = platform().mainQueue](AuthorizationStatus status) {
            mainQueue.post([weak, status] {
                if (const auto standing = weak.lock())
                    standing->actOn(status);
            });
        });
}

void ReminderViewController::actOn(AuthorizationStatus status) {
    if (status == AuthorizationStatus::Denied)
        showPermissionAlert();
    else if (toggleSwitch.isOn())
        showRows();
    else
        hideRows();
}

void ReminderViewController::showPermissionAlert() {
    const auto alert =
        std::make_shared<ui::AlertController>(window(), ui::AlertStyle::Alert, "Notifications Permission",
                                              "In order to send reminders, the app needs to have a "
                                              "permission for that. Please go to the Settings and "
                                              "enable it");
    alert->addAction({texts().alertNo, ui::AlertActionStyle::Destructive, [this] { turnSwitchOff(); }});
    alert->addAction({texts().alertYes, ui::AlertActionStyle::Default, [this] {
                          turnSwitchOff();
                          services().screens().openNotificationSettings();
                      }});
    present(alert);
}

void ReminderViewController::turnSwitchOff() {
    toggleSwitch.setOn(false);
}

void ReminderViewController::showRows() {
    showSwitchGradient(toggleSwitch, true);
    const bool future = eventData && eventData->eventType.value_or(false);
    for (ui::View* row : std::initializer_list<ui::View*>{&alertInfoLabel, &alertlabel, &alertButton})
        row->setHidden(!future);
    for (ui::View* row : std::initializer_list<ui::View*>{&repeatInfoLabel, &repeatLabel, &repeatButton})
        row->setHidden(future);
    CountLabel.setHidden(false);
    reminderMess.setHidden(false);
    bindTap(alertlabel, [this] { alertButtonTapped(); });
    bindTap(repeatLabel, [this] { repeatButtonTapped(); });
}

void ReminderViewController::hideRows() {
    showSwitchGradient(toggleSwitch, false);
    for (ui::View* row :
         std::initializer_list<ui::View*>{&alertInfoLabel, &alertlabel, &alertButton, &repeatInfoLabel,
                                          &repeatLabel, &repeatButton, &CountLabel, &reminderMess})
        row->setHidden(true);
}

void ReminderViewController::repeatButtonTapped() {
    selectedLabel = true;
    handleViewLiveTap(repeatTitles(), repRemIndex, repeatSheetHeight);
}

void ReminderViewController::alertButtonTapped() {
    selectedLabel = false;
    handleViewLiveTap(alertTitles(), alertRemIndex, alertSheetHeight);
}

void ReminderViewController::handleViewLiveTap(const std::vector<std::string>& titles, int selected,
                                               double height) {
    present(TableViewController::make(window(), platform().console, titles, selected,
                                      weakSelf<TableViewControllerDelegate>(this), height));
}

void ReminderViewController::didSelectValue(const std::string& title, int index) {
    if (selectedLabel) {
        repeatLabel.setText(title);
        repRemIndex = index;
    } else {
        alertlabel.setText(title);
        alertRemIndex = index;
    }
}

bool ReminderViewController::shouldChangeText(ui::TextInput& input, ui::TextRange range,
                                              const std::string& replacement) {
    std::string message = ui::replacing(input.text(), range, replacement);
    const std::size_t count = platform().textCounting.characters(message);
    if (count > maxLength)
        return false;
    messageText = std::move(message);
    CountLabel.setStyledText(makeCounterText("Reminder Message", count, maxLength));
    return true;
}

void ReminderViewController::didBeginEditing(ui::TextInput& input) {
    if (input.text() == placeholderText) {
        input.setText("");
        input.setTextColor(ui::ColorRef::black());
    }
    moveNextButton(true);
}

void ReminderViewController::didEndEditing(ui::TextInput& input) {
    if (input.text().empty()) {
        input.setText(placeholderText);
        input.setTextColor(ui::ColorRef::named("disabled"));
        messageText.clear();
    }
    moveNextButton(false);
}

void ReminderViewController::moveNextButton(bool editing) {
    const double height = screen().height();
    if (height == 811 || height >= 1000)
        return;
    const double offset = !editing ? 16 : height < 811 ? -85 : -16;
    nextButton.setCenter({0, offset});
}

void ReminderViewController::nextButtonTapped() {
    const auto next = std::make_shared<EventBackgroundViewController>(services());
    if (!eventData)
        eventData.emplace();
    const bool reminds = toggleSwitch.isOn();
    eventData->alertReminder = reminds ? static_cast<std::int16_t>(alertRemIndex) : NO_VALUE;
    eventData->remMess = reminds ? messageText : std::string();
    eventData->repReminder = reminds ? static_cast<std::int16_t>(repRemIndex) : NO_VALUE;
    next->eventData = eventData;
    show(next);
}

} // namespace tessivo
