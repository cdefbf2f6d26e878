#pragma once

#include "AddEventVC/Label.h"
#include "AddEventVC/LengthRule.h"
#include "AddEventVC/WizardScreen.h"
#include "Interface/Switch.h"
#include "Ports/NotificationCenter.h"
#include "SelectValueVC/TableViewController.h"

namespace tessivo {

/// Whether an event reminds, when, and in what words, in the wizard and on the edit screen. An event ahead
/// chooses how long before, a past one how often.
class ReminderScreen : public WizardScreen, public ui::TextInputDelegate, public TableViewControllerDelegate {
public:
    explicit ReminderScreen(SharedServices& services);

    static constexpr int maxLength = 50;

    ui::Switch toggleSwitch{controls, "toggleSwitch"};
    /// Whether the value picker was last opened for the repeat row.
    bool selectedLabel = false;
    /// The message as the user typed it; never the placeholder.
    std::string messageText;
    ui::TextView reminderMess{controls, "reminderMess"};
    ui::Label CountLabel{controls, "CountLabel"};
    int repRemIndex = 0;
    int alertRemIndex = 0;
    InfoLabel reminderInfoLabel{controls, "reminderInfoLabel", localized("Reminder")};
    InfoLabel repeatInfoLabel{controls, "repeatInfoLabel", localized("Repeat")};
    InfoLabel alertInfoLabel{controls, "alertInfoLabel", localized("Alert")};
    Label reminderLabel{controls, "reminderLabel", localized("Reminder")};
    Label alertlabel{controls, "alertlabel", localized("At time of event")};
    Label repeatLabel{controls, "repeatLabel", localized("Every day")};
    ui::Button repeatButton{controls, "repeatButton"};
    ui::Button alertButton{controls, "alertButton"};

    virtual void nextButtonTapped() = 0;
    void handleTap() { reminderMess.endEditing(); }
    void repeatButtonTapped();
    void alertButtonTapped();
    void switchValueChanged();
    void didSelectValue(const std::string& title, int index) override;
    [[nodiscard]] bool shouldChangeText(ui::TextInput& input, ui::TextRange range,
                                        const std::string& replacement) override;
    void didBeginEditing(ui::TextInput& input) override;
    void didEndEditing(ui::TextInput& input) override;

protected:
    /// What the rows say when the switch is on; off, an event has neither of the numbers and no message.
    struct Reminder {
        std::int16_t alertReminder;
        std::int16_t repReminder;
        std::string remMess;
    };

    /// Builds the rows of a reminder that is off.
    void buildRows();
    /// Fills the rows with a reminder that is on, and shows them. A number that no title stands for stops the
    /// program.
    void fillRows(const Reminder& reminder);
    [[nodiscard]] Reminder chosenReminder() const;
    [[nodiscard]] virtual bool eventIsAhead() const = 0;

private:
    void actOn(AuthorizationStatus status);
    void showPermissionAlert();
    void turnSwitchOff();
    void showRows();
    void hideRows();
    void handleViewLiveTap(const std::vector<std::string>& titles, int selected, double height);
    /// Moves Next out of the keyboard's way and back.
    void moveNextButton(bool editing);
    [[nodiscard]] std::weak_ptr<ReminderScreen> weakThis();

    const std::string placeholderText_;
    LengthRule lengthRule_;
};

} // namespace tessivo
