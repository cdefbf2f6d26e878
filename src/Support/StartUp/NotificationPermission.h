#pragma once

#include "Interface/PresentationStack.h"
#include "Ports/MainQueue.h"
#include "Ports/NotificationCenter.h"

#include <deque>
#include <functional>
#include <memory>

namespace tessivo {

/// The machine's part in the permission to notify, where the desktop has none of its own: the question, and
/// the page on which the answer can be changed. Both stand over whatever is on the screen, as soon as no
/// slide is under way.
class NotificationPermission {
public:
    /// `changeAnswer` stores what the user decides on the page. `stack` outlives this object.
    NotificationPermission(ui::PresentationStack& stack, NotificationCenter& center, MainQueue& mainQueue,
                           std::function<void(bool allowed)> changeAnswer);

    /// Asks the user; `answered` is called once, when they have answered.
    void ask(std::function<void(bool allowed)> answered);

    /// Opens the page.
    void openSettings();

private:
    void show(std::shared_ptr<ui::ViewController> screen);
    void showWaiting();

    ui::PresentationStack& stack_;
    NotificationCenter& center_;
    MainQueue& mainQueue_;
    std::function<void(bool)> changeAnswer_;
    std::deque<std::shared_ptr<ui::ViewController>> waiting_;
    std::weak_ptr<ui::ViewController> standing_; ///< one at a time
    Subscription stackChanges_;
};

} // namespace tessivo
