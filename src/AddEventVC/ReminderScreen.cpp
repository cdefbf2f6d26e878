#include "AddEventVC/ReminderScreen.h"

#include "AddEventVC/GradientSwitch.h"
#include "AddEventVC/ValueTables.h"
#include "Event/EventItem.h"
#include "Interface/AlertController.h"
#include "Ports/Console.h"
#include "Ports/MainQueue.h"
#include "Support/LocalizationVariables.h"

namespace tessivo {
namespace {

constexpr double repeatSheetHeight = 350;
constexpr double alertSheetHeight = 550;
constexpr double insetAtRest = 16;
constexpr double insetOverKeyboard = 85;
constexpr double tallScreen = 811; ///< from this height up the keyboard does not reach Next

} // namespace

ReminderScreen::ReminderScreen(SharedServices& services)
    : WizardScreen(services),
      placeholderText_(localized("Add Message")),
      lengthRule_(localized("Reminder Message ("), maxLength, services.platform().textCounting, CountLabel) {}

void ReminderScreen::buildRows() {
    nextButton.addTarget(ui::PressEvent::UpInside, [this] { nextButtonTapped(); });
    addSwitchGradient(toggleSwitch, platform().colors, platform().console);
    toggleSwitch.setAccessibilityName(reminderLabel.text());
    toggleSwitch.addValueChangedTarget([this] { switchValueChanged(); });
    reminderMess.setText(placeholderText_);
    reminderMess.setTextColor(ui::ColorRef::named("disabled"));
    reminderMess.setBackgroundColor(ui::ColorRef::named("backText"));
    reminderMess.setCornerRadius(16);
    reminderMess.setTextInsets({10, 16, 10, 16});
    reminderMess.setAccessibilityName(localized("Reminder Message"));
    reminderMess.delegate = weakSelf<ui::TextInputDelegate>(this);
    lengthRule_.show("");
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
    bindTap(view(), [this] { handleTap(); });
    hideRows();
}

std::weak_ptr<ReminderScreen> ReminderScreen::weakThis() {
    return std::static_pointer_cast<ReminderScreen>(shared_from_this());
}

void ReminderScreen::switchValueChanged() {
    platform().notificationCenter.getNotificationSettings(
        [weak = weakThis(), &mainQueue = platform().mainQueue](AuthorizationStatus status) {
            mainQueue.post([weak, status] {
                if (const auto standing = weak.lock())
                    standing->actOn(status);
            });
        });
}

void ReminderScreen::actOn(AuthorizationStatus status) {
    if (status == AuthorizationStatus::Denied)
        showPermissionAlert();
    else if (toggleSwitch.isOn())
        showRows();
    else
        hideRows();
}

void ReminderScreen::showPermissionAlert() {
    const auto alert = std::make_shared<ui::AlertController>(
        window(), ui::AlertStyle::Alert, localized("Notifications Permission"),
        localized("In order to send reminders, the app needs to have a "
                  "permission for that. Please go to the Settings and "
                  "enable it"));
    alert->addAction({texts().alertNo, ui::AlertActionStyle::Destructive, [this] { turnSwitchOff(); }, true});
    alert->addAction({texts().alertYes, ui::AlertActionStyle::Default, [this] {
                          turnSwitchOff();
                          services().openNotificationSettings();
                      }});
    present(alert);
}

void ReminderScreen::turnSwitchOff() {
    toggleSwitch.setOn(false);
}

void ReminderScreen::showRows() {
    showSwitchGradient(toggleSwitch, true);
    const bool future = eventIsAhead();
    for (ui::View* row : std::initializer_list<ui::View*>{&alertInfoLabel, &alertlabel, &alertButton})
        row->setHidden(!future);
    for (ui::View* row : std::initializer_list<ui::View*>{&repeatInfoLabel, &repeatLabel, &repeatButton})
        row->setHidden(future);
    CountLabel.setHidden(false);
    reminderMess.setHidden(false);
    bindTap(alertlabel, [this] { alertButtonTapped(); });
    bindTap(repeatLabel, [this] { repeatButtonTapped(); });
}

void ReminderScreen::hideRows() {
    showSwitchGradient(toggleSwitch, false);
    for (ui::View* row :
         std::initializer_list<ui::View*>{&alertInfoLabel, &alertlabel, &alertButton, &repeatInfoLabel,
                                          &repeatLabel, &repeatButton, &CountLabel, &reminderMess})
        row->setHidden(true);
}

void ReminderScreen::repeatButtonTapped() {
    selectedLabel = true;
    handleViewLiveTap(repeatTitles(platform().texts), repRemIndex, repeatSheetHeight);
}

void ReminderScreen::alertButtonTapped() {
    selectedLabel = false;
    handleViewLiveTap(alertTitles(platform().texts), alertRemIndex, alertSheetHeight);
}

void ReminderScreen::handleViewLiveTap(const std::vector<std::string>& titles, int selected, double height) {
    present(TableViewController::make(window(), platform().console,
                                      (selectedLabel ? repeatInfoLabel : alertInfoLabel).text(), titles,
                                      selected, weakSelf<TableViewControllerDelegate>(this), height));
}

void ReminderScreen::didSelectValue(const std::string& title, int index) {
    if (selectedLabel) {
        repeatLabel.setText(title);
        repRemIndex = index;
    } else {
        alertlabel.setText(title);
        alertRemIndex = index;
    }
}

bool ReminderScreen::shouldChangeText(ui::TextInput& input, ui::TextRange range,
                                      const std::string& replacement) {
    const auto message = lengthRule_.accept(input, range, replacement);
    if (message)
        messageText = *message;
    return message.has_value();
}

void ReminderScreen::didBeginEditing(ui::TextInput& input) {
    if (input.text() == placeholderText_) {
        input.setText("");
        input.setTextColor(ui::ColorRef::black());
    }
    moveNextButton(true);
}

void ReminderScreen::didEndEditing(ui::TextInput& input) {
    if (input.text().empty()) {
        input.setText(placeholderText_);
        input.setTextColor(ui::ColorRef::named("disabled"));
        messageText.clear();
    }
    moveNextButton(false);
}

void ReminderScreen::moveNextButton(bool editing) {
    setBottomInset(editing && screen().height() < tallScreen ? insetOverKeyboard : insetAtRest);
}

void ReminderScreen::fillRows(const Reminder& reminder) {
    const auto titleAt = [this](const std::vector<std::string>& titles, int index) {
        if (index < 0 || static_cast<std::size_t>(index) >= titles.size())
            platform().console.stopProgram("There is no reminder " + std::to_string(index) + ".");
        return titles[static_cast<std::size_t>(index)];
    };
    alertRemIndex = reminder.alertReminder;
    repRemIndex = reminder.repReminder;
    alertlabel.setText(titleAt(alertTitles(platform().texts), alertRemIndex));
    repeatLabel.setText(titleAt(repeatTitles(platform().texts), repRemIndex));
    messageText = reminder.remMess;
    lengthRule_.show(messageText);
    if (!messageText.empty()) {
        reminderMess.setText(messageText);
        reminderMess.setTextColor(ui::ColorRef::black());
    }
    toggleSwitch.setOn(true);
    showRows();
}

ReminderScreen::Reminder ReminderScreen::chosenReminder() const {
    if (!toggleSwitch.isOn())
        return {NO_VALUE, NO_VALUE, ""};
    return {static_cast<std::int16_t>(alertRemIndex), static_cast<std::int16_t>(repRemIndex), messageText};
}

} // namespace tessivo
