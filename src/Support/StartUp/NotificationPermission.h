#pragma once

#include "Ports/MainQueue.h"
#include "Ports/NotificationCenter.h"

#include <functional>

namespace tessivo {

class LocalizedTexts;
class PendingScreens;

namespace ui {
struct WindowContext;
}

/// The machine's part in the permission to notify, where the desktop has none of its own: the question, and
/// the page on which the answer can be changed.
class NotificationPermission {
public:
    /// `changeAnswer` stores what the user decides on the page. All others outlive this object.
    NotificationPermission(PendingScreens& pending, ui::WindowContext& window, NotificationCenter& center,
                           MainQueue& mainQueue, const LocalizedTexts& texts,
                           std::function<void(bool allowed)> changeAnswer);

    /// Asks the user; `answered` is called once, when they have answered.
    void ask(std::function<void(bool allowed)> answered);

    /// Opens the page.
    void openSettings();

private:
    PendingScreens& pending_;
    ui::WindowContext& window_;
    NotificationCenter& center_;
    MainQueue& mainQueue_;
    const LocalizedTexts& texts_;
    std::function<void(bool)> changeAnswer_;
};

} // namespace tessivo
