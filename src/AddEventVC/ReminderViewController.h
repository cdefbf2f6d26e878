#pragma once

#include "AddEventVC/ReminderScreen.h"
#include "Event/EventItem.h"

namespace tessivo {

/// The third step of the wizard: the reminder. It only fills the draft.
class ReminderViewController final : public ReminderScreen {
public:
    using ReminderScreen::ReminderScreen;

    std::optional<EventItem> eventData;

    [[nodiscard]] std::string screenName() const override { return "ReminderViewController"; }

    void nextButtonTapped() override;

protected:
    void viewDidLoad() override;
    [[nodiscard]] bool eventIsAhead() const override;

private:
    void askPermission();
};

} // namespace tessivo
