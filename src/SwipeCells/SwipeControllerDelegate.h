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

/// Answers for one cell and hears what its controller does.
class SwipeControllerDelegate {
public:
    virtual ~SwipeControllerDelegate() = default;

    [[nodiscard]] virtual bool canBeginEditing(SwipeController&, SwipeActionsOrientation) = 0;
    [[nodiscard]] virtual std::optional<SwipeActions> editActions(SwipeController&,
                                                                  SwipeActionsOrientation) = 0;
    [[nodiscard]] virtual std::optional<SwipeOptions> editActionsOptions(SwipeController&,
                                                                         SwipeActionsOrientation) = 0;
    virtual void willBeginEditing(SwipeController&, SwipeActionsOrientation) = 0;
    virtual void didEndEditing(SwipeController&, SwipeActionsOrientation) = 0;
    virtual void didDelete(SwipeController&, int indexPath) = 0;
    /// The part of the list that the user sees, in the list's space; empty for no say.
    [[nodiscard]] virtual std::optional<ui::Rect> visibleRect(SwipeController&, ui::ScrollView&) = 0;
};

} // namespace tessivo::swipe
