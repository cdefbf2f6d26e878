#pragma once

#include "Ports/Time.h"

#include <span>

namespace tessivo::ui {
class Animations;
class Button;
} // namespace tessivo::ui

namespace tessivo::swipe {

struct SwipeExpansionAnimationTimingParameters {
    Seconds duration{0.6};
    Seconds delay{0};
};

/// Says how the buttons of a row look while its last one expands over them.
class SwipeExpanding {
public:
    virtual ~SwipeExpanding() = default;

    /// The timing of the expanding button; `buttons` starts with it.
    [[nodiscard]] virtual SwipeExpansionAnimationTimingParameters
    timingParameters(std::span<ui::Button* const> buttons, bool expanding) const = 0;

    /// The button starts to expand, or to collapse. `others` lie behind it, the nearest first.
    virtual void buttonDidChange(ui::Animations& animations, ui::Button& button, bool expanding,
                                 std::span<ui::Button* const> others) const = 0;
};

} // namespace tessivo::swipe
