#include "SwipeCells/ScaleTransition.h"

#include "Interface/Animation.h"
#include "Interface/Button.h"

namespace tessivo::swipe {

void ScaleTransition::didTransition(const SwipeActionTransitioningContext& context) const {
    if (context.oldPercentVisible == 0)
        context.button.setScale(initialScale);
    const bool wasSeen = context.oldPercentVisible >= threshold;
    const bool isSeen = context.newPercentVisible >= threshold;
    if (wasSeen == isSeen)
        return;
    const auto animator = ui::PropertyAnimator::make(context.animations, ui::EaseInOut{duration});
    animator->addAnimations(
        [&button = context.button, scale = isSeen ? 1 : initialScale] { button.setScale(scale); });
    animator->startAnimation();
}

} // namespace tessivo::swipe
