#pragma once

#include "SwipeCells/SwipeExpanding.h"

namespace tessivo::swipe {

/// The other buttons shrink and fade one after the other, and come back in the reverse order. `duration` is
/// that of one such button.
class ScaleAndAlphaExpansion final : public SwipeExpanding {
public:
    Seconds duration{0.15};
    double scale = 0.8;
    Seconds interButtonDelay{0.1};

    [[nodiscard]] SwipeExpansionAnimationTimingParameters
    timingParameters(std::span<ui::Button* const> buttons, bool expanding) const override;
    void buttonDidChange(ui::Animations& animations, ui::Button& button, bool expanding,
                         std::span<ui::Button* const> others) const override;
};

} // namespace tessivo::swipe
