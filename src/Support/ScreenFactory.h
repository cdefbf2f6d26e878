#pragma once

#include <memory>

namespace tessivo {

class EventCoreData;
class SettingControllerDelegate;

namespace ui {
class ViewController;
}

/// The screens that change a stored event.
enum class EditScreen { Title, DateAndTime, Reminder, Background };

/// Makes the screens that lead to each other in circles, so that none of their folders needs the others. A
/// null screen is one that the program does not have: nothing is shown.
class ScreenFactory {
public:
    virtual ~ScreenFactory() = default;

    /// The two lists with their tabs, as a flow ends in them.
    [[nodiscard]] virtual std::shared_ptr<ui::ViewController> makeTabShell() = 0;
    /// The first step of the wizard that makes an event.
    [[nodiscard]] virtual std::shared_ptr<ui::ViewController> makeAddWizard() = 0;
    /// `record` over the whole screen.
    [[nodiscard]] virtual std::shared_ptr<ui::ViewController>
    makeFullEvent(std::shared_ptr<EventCoreData> record) = 0;
    /// The screen that changes `eventData`, which both hold.
    [[nodiscard]] virtual std::shared_ptr<ui::ViewController>
    makeEdit(EditScreen kind, std::shared_ptr<EventCoreData> eventData) = 0;
    /// `delegate` hears when the user has chosen another card size.
    [[nodiscard]] virtual std::shared_ptr<ui::ViewController>
    makeSettings(std::weak_ptr<SettingControllerDelegate> delegate) = 0;
    /// The tour of the first run, which ends in the tabs.
    [[nodiscard]] virtual std::shared_ptr<ui::ViewController> makeOnboarding() = 0;
};

} // namespace tessivo
