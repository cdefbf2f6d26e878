#pragma once

#include "Interface/Geometry.h"
#include "SwipeCells/SwipeAction.h"
#include "SwipeCells/SwipeOptions.h"

#include <optional>

namespace tessivo::ui {
class ScrollView;
}

namespace tessivo::swipe {

class SwipeController;

/// Answers for one cell and hears what its controller does. It may take the cell away as it hears of an end
/// or a deletion. Main thread.
class SwipeControllerDelegate {
public:
    virtual ~SwipeControllerDelegate() = default;

    /// Asked at each step of a pan, with the side that the finger is opening; false stops the step.
    [[nodiscard]] virtual bool canBeginEditing(SwipeController&, SwipeActionsOrientation) = 0;
    /// None, or none of them, leaves the cell closed.
    [[nodiscard]] virtual std::optional<SwipeActions> editActions(SwipeController&,
                                                                  SwipeActionsOrientation) = 0;
    /// Empty for the standard ones.
    [[nodiscard]] virtual std::optional<SwipeOptions> editActionsOptions(SwipeController&,
                                                                         SwipeActionsOrientation) = 0;
    /// The row stands, and the state is `Dragging`.
    virtual void willBeginEditing(SwipeController&, SwipeActionsOrientation) = 0;
    /// The cell is about to go back, or has been filled.
    virtual void didEndEditing(SwipeController&, SwipeActionsOrientation) = 0;
    /// The item is to leave the list; the cell goes by itself.
    virtual void didDelete(SwipeController&, int indexPath) = 0;
    /// The part of the list that the user sees, in the list's space; empty for no say.
    [[nodiscard]] virtual std::optional<ui::Rect> visibleRect(SwipeController&, ui::ScrollView&) = 0;
};

} // namespace tessivo::swipe
