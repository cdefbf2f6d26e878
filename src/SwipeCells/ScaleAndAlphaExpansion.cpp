#include "SwipeCells/ScaleAndAlphaExpansion.h"

#include "Interface/Animation.h"
#include "Interface/Button.h"

namespace tessivo::swipe {

SwipeExpansionAnimationTimingParameters ScaleAndAlphaExpansion::timingParameters(std::span<ui::Button* const>,
                                                                                 bool expanding) const {
    SwipeExpansionAnimationTimingParameters timing;
    timing.delay = expanding ? interButtonDelay : Seconds(0);
    return timing;
}

void ScaleAndAlphaExpansion::buttonDidChange(ui::Animations& animations, ui::Button&, bool expanding,
                                             std::span<ui::Button* const> others) const {
    for (std::size_t index = 0; index < others.size(); ++index) {
        // The row may be taken away before its turn comes.
        auto* const button = others[expanding ? index : others.size() - 1 - index];
        const auto animator = ui::PropertyAnimator::make(animations, ui::EaseInOut{duration});
        animator->addAnimations([alive = button->lifetime(), button, expanding, scale = scale] {
            if (alive.expired())
                return;
            button->setScale(expanding ? scale : 1);
            button->setAlpha(expanding ? 0 : 1);
        });
        animator->startAnimation(interButtonDelay * static_cast<double>(expanding ? index : index + 1));
    }
}

} // namespace tessivo::swipe
