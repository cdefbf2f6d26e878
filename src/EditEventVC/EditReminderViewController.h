#pragma once

#include "AddEventVC/ReminderScreen.h"

namespace tessivo {

class EventCoreData;

/// Changes the reminder of a stored event, or turns it off or on.
class EditReminderViewController final : public ReminderScreen {
public:
    using ReminderScreen::ReminderScreen;

    /// Set by the opener. Save writes into it first, and then through the shared stack.
    std::shared_ptr<EventCoreData> eventData;

    [[nodiscard]] std::string screenName() const override { return "EditReminderViewController"; }

    /// Saves, makes the notification anew if the reminder is on, and shows the lists anew. Turned off, a
    /// notification that is pending stays and comes once more. Nothing of that for an event without `id`.
    void nextButtonTapped() override;

protected:
    void viewDidLoad() override;
    [[nodiscard]] bool eventIsAhead() const override;
};

} // namespace tessivo
