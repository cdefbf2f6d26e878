#pragma once

namespace tessivo {

class LocalizedTexts;
class PendingScreens;

namespace ui {
struct WindowContext;
}

/// Tells the user, once in the life of the program, that their reminders cannot be shown on this desktop.
class UnshownRemindersAlert final {
public:
    /// All of these outlive the alert.
    UnshownRemindersAlert(PendingScreens& pending, ui::WindowContext& window, const LocalizedTexts& texts)
        : pending_(pending), window_(window), texts_(texts) {}

    void show();

private:
    PendingScreens& pending_;
    ui::WindowContext& window_;
    const LocalizedTexts& texts_;
    bool shown_ = false;
};

} // namespace tessivo
