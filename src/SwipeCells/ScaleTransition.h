#pragma once

#include "Ports/Time.h"
#include "SwipeCells/SwipeActionTransitioning.h"

namespace tessivo::swipe {

/// A button grows to its size once enough of it is seen, and shrinks again below that.
class ScaleTransition final : public SwipeActionTransitioning {
public:
    Seconds duration{0.15};
    double initialScale = 0.8;
    double threshold = 0.5;

    void didTransition(const SwipeActionTransitioningContext& context) const override;
};

} // namespace tessivo::swipe
