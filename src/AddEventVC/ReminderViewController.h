#pragma once

#include "AddEventVC/Label.h"
#include "AddEventVC/WizardScreen.h"
#include "Event/EventItem.h"
#include "Interface/Switch.h"
#include "Interface/TextInput.h"
#include "Ports/NotificationCenter.h"
#include "SelectValueVC/TableViewController.h"

namespace tessivo {

/// The third step of the wizard: whether the event reminds, when, and in what words. It only fills the draft.
class ReminderViewController final : public WizardScreen,
                                     public ui::TextInputDelegate,
                                     public TableViewControllerDelegate {
public:
    explicit ReminderViewController(SharedServices& services) : WizardScreen(services) {}

    static constexpr int maxLength = 50;

    ui::Switch toggleSwitch{controls, "toggleSwitch"};
    std::optional<EventItem> eventData;
    /// Whether the value picker was last opened for the repeat row.
    bool selectedLabel = false;
    /// The message as the user typed it; never the placeholder.
    std::string messageText;
    ui::TextView reminderMess{controls, "reminderMess"};
    ui::Label CountLabel{controls, "CountLabel"};
    int repRemIndex = 0;
    int alertRemIndex = 0;
    InfoLabel reminderInfoLabel{controls, "reminderInfoLabel", "Reminder"};
    InfoLabel repeatInfoLabel{controls, "repeatInfoLabel", "Repeat"};
    InfoLabel alertInfoLabel{controls, "alertInfoLabel", "Alert"};
    Label reminderLabel{controls, "reminderLabel", "Reminder"};
    Label alertlabel{controls, "alertlabel", "At time of event"};
    Label repeatLabel{controls, "repeatLabel", "Every day"};
    ui::Button repeatButton{controls, "repeatButton"};
    ui::Button alertButton{controls, "alertButton"};

    [[nodiscard]] std::string screenName() const override { return "ReminderViewController"; }

    void nextButtonTapped();
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
    void viewDidLoad() override;

private:
    void buildRows();
    void askPermission();
    void actOn(AuthorizationStatus status);
    void showPermissionAlert();
    void turnSwitchOff();
    void showRows();
    void hideRows();
    void handleViewLiveTap(const std::vector<std::string>& titles, int selected, double height);
    /// Moves Next out of the keyboard's way and back: its centre's y is its offset from the foot of the safe
    /// area.
    void moveNextButton(bool editing);
    [[nodiscard]] std::weak_ptr<ReminderViewController> weakThis();
};

} // namespace tessivo
