#pragma once

#include <optional>
#include <string>

namespace tessivo::ui {
class Animations;
class Button;
class View;
} // namespace tessivo::ui

namespace tessivo::swipe {

/// A change of how much of a button is seen, as shares of its full width. What it refers to lasts for the
/// call; `animations` for the program's life.
struct SwipeActionTransitioningContext {
    std::optional<std::string> actionIdentifier;
    ui::Button& button;
    double newPercentVisible = 0;
    double oldPercentVisible = 0;
    ui::View& wrapperView;
    ui::Animations& animations;
};

/// Notified of each such change, in a later turn of the main queue than the layout that caused it; of none
/// once the row has gone. Main thread.
class SwipeActionTransitioning {
public:
    virtual ~SwipeActionTransitioning() = default;

    virtual void didTransition(const SwipeActionTransitioningContext& context) const = 0;
};

} // namespace tessivo::swipe
