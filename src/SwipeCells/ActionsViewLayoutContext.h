#pragma once

#include "Interface/Geometry.h"
#include "SwipeCells/SwipeActionsOrientation.h"

namespace tessivo::swipe {

/// The numbers from which the buttons of a row are placed.
struct ActionsViewLayoutContext {
    int numberOfActions = 0;
    SwipeActionsOrientation orientation = SwipeActionsOrientation::Left;
    ui::Size contentSize;
    double visibleWidth = 0;
    double minimumButtonWidth = 0;
};

} // namespace tessivo::swipe
