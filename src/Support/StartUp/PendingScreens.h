#pragma once

#include "Interface/PresentationStack.h"

#include <deque>
#include <memory>

namespace tessivo {

/// Screens that the machine's side wants to show over whatever is on the screen: one at a time, in order,
/// each as soon as no slide is under way. Main thread.
class PendingScreens final {
public:
    /// `stack` outlives this object.
    explicit PendingScreens(ui::PresentationStack& stack);

    void show(std::shared_ptr<ui::ViewController> screen);

private:
    void showNext();

    ui::PresentationStack& stack_;
    std::deque<std::shared_ptr<ui::ViewController>> waiting_;
    std::weak_ptr<ui::ViewController> standing_;
    Subscription stackChanges_;
};

} // namespace tessivo
