#pragma once

#include "Interface/Geometry.h"
#include "SwipeCells/SwipeAction.h"

#include <optional>
#include <variant>
#include <vector>

namespace tessivo::ui {
class PanGestureRecognizer;
class View;
} // namespace tessivo::ui

namespace tessivo::swipe {

class Swipeable;

/// When the action's handler runs: as the fill starts, or when it has finished.
enum class HandlerInvocationTiming { With, After };

/// How a row may stretch past its natural width until its last action fires by itself. Lengths in points.
class SwipeExpansionStyle final {
public:
    struct Percentage {
        double ratio; ///< of the cell's width
    };
    struct EdgeInset {
        double distance; ///< from the far edge
    };
    using Target = std::variant<Percentage, EdgeInset>;

    struct TouchThreshold {
        double ratio; ///< of the cell's width, from the side that the actions come from
    };
    struct Overscroll {
        double distance; ///< past the natural width
    };
    using Trigger = std::variant<TouchThreshold, Overscroll>;

    struct FillOptions {
        std::optional<ExpansionFulfillmentStyle> autoFulFillmentStyle; ///< empty: the owner ends the fill
        HandlerInvocationTiming timing;
    };
    struct Bounce {};
    using CompletionAnimation = std::variant<FillOptions, Bounce>;

    SwipeExpansionStyle(Target itsTarget, std::vector<Trigger> triggers, bool elastic,
                        CompletionAnimation atRelease)
        : target(itsTarget),
          additionalTriggers(std::move(triggers)),
          elasticOverscroll(elastic),
          completionAnimation(atRelease) {}

    /// From half of the cell on the action is called at the release, and the cell returns.
    [[nodiscard]] static SwipeExpansionStyle bounceAtHalf();
    /// The row fills at the release and takes its item away; the action is called as the fill starts.
    [[nodiscard]] static SwipeExpansionStyle deleteAtFill();
    /// The same with the action called when the fill has finished.
    [[nodiscard]] static SwipeExpansionStyle deleteAfterFill();
    /// The same with the action called at `timing`; unless `automaticallyDelete` the owner ends the fill.
    [[nodiscard]] static SwipeExpansionStyle deleteAtFill(bool automaticallyDelete,
                                                          HandlerInvocationTiming timing);
    /// The row fills, the action is called afterwards, and the owner ends the fill.
    [[nodiscard]] static SwipeExpansionStyle plainFill();

    Target target;
    std::vector<Trigger> additionalTriggers;
    bool elasticOverscroll; ///< past its natural width the row follows at a quarter of the speed
    CompletionAnimation completionAnimation;
    double minimumTargetOverscroll = 20;     ///< the target lies no nearer beyond the natural width
    double targetOverscrollElasticity = 0.2; ///< how the cell follows the finger beyond the target
    double minimumExpansionTranslation = 8;  ///< a finger that has moved no more expands nothing

    /// The distance at which the row is fully expanded; the largest length there is without an actions view.
    [[nodiscard]] double stopOffset(const Swipeable& swipeable) const;

    /// Whether the row is expanded at this instant. `referenceFrame` is that of the moved container where it
    /// is not the cell itself.
    [[nodiscard]] bool isPastExpansionPoint(const Swipeable& swipeable,
                                            const ui::PanGestureRecognizer& gesture,
                                            const ui::View& referenceView,
                                            const std::optional<ui::Rect>& referenceFrame) const;
};

} // namespace tessivo::swipe
