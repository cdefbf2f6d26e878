#include "SwipeCells/SwipeExpansionStyle.h"

#include "Interface/Gestures.h"
#include "Interface/View.h"
#include "SwipeCells/SwipeActionsView.h"
#include "SwipeCells/Swipeable.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace tessivo::swipe {
namespace {

constexpr double fillInset = 30;
constexpr double fillTouchThreshold = 0.8;

} // namespace

SwipeExpansionStyle SwipeExpansionStyle::bounceAtHalf() {
    return {Percentage{0.5}, {}, true, Bounce{}};
}

SwipeExpansionStyle SwipeExpansionStyle::deleteAtFill() {
    return deleteAtFill(true, HandlerInvocationTiming::With);
}

SwipeExpansionStyle SwipeExpansionStyle::deleteAfterFill() {
    return deleteAtFill(true, HandlerInvocationTiming::After);
}

SwipeExpansionStyle SwipeExpansionStyle::deleteAtFill(bool automaticallyDelete,
                                                      HandlerInvocationTiming timing) {
    const auto style = automaticallyDelete ? std::optional(ExpansionFulfillmentStyle::Delete) : std::nullopt;
    return {EdgeInset{fillInset}, {TouchThreshold{fillTouchThreshold}}, false, FillOptions{style, timing}};
}

SwipeExpansionStyle SwipeExpansionStyle::plainFill() {
    return {EdgeInset{fillInset},
            {Overscroll{fillInset}},
            false,
            FillOptions{std::nullopt, HandlerInvocationTiming::After}};
}

double SwipeExpansionStyle::stopOffset(const Swipeable& swipeable) const {
    const auto actionsView = swipeable.actionsView();
    if (!actionsView)
        return std::numeric_limits<double>::max();
    const double width = swipeable.swipedView().frame().width;
    const auto* percentage = std::get_if<Percentage>(&target);
    const double offset =
        percentage ? width * percentage->ratio : width - std::get<EdgeInset>(target).distance;
    return std::max(offset, actionsView->naturalRowWidth() + minimumTargetOverscroll);
}

bool SwipeExpansionStyle::isPastExpansionPoint(const Swipeable& swipeable,
                                               const ui::PanGestureRecognizer& gesture,
                                               const ui::View& referenceView,
                                               const std::optional<ui::Rect>& referenceFrame) const {
    const auto actionsView = swipeable.actionsView();
    if (!actionsView || !gesture.view())
        return false;
    if (std::abs(gesture.translation().x) <= minimumExpansionTranslation)
        return false;
    const ui::Rect frame = swipeable.swipedView().frame();
    const double natural = actionsView->naturalRowWidth();
    const double distance = std::floor(std::abs((referenceFrame ? *referenceFrame : frame).minX()));
    if (distance <= natural)
        return false;
    if (distance > stopOffset(swipeable))
        return true;
    const ui::Rect reference = referenceFrame ? frame : referenceView.bounds();
    return std::ranges::any_of(additionalTriggers, [&](const Trigger& trigger) {
        if (const auto* overscroll = std::get_if<Overscroll>(&trigger))
            return std::abs(frame.minX()) > natural + overscroll->distance;
        const double x = gesture.locationIn(referenceView).x - reference.x;
        const double travelled = actionsView->orientation() == SwipeActionsOrientation::Left
                                     ? x / reference.width
                                     : (reference.width - x) / reference.width;
        return travelled > std::get<TouchThreshold>(trigger).ratio;
    });
}

} // namespace tessivo::swipe
