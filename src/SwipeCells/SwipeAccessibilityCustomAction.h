#pragma once

#include "SwipeCells/SwipeAction.h"

namespace tessivo::swipe {

/// An action of a row as assistive technology offers it.
struct SwipeAccessibilityCustomAction {
    std::string name;
    std::shared_ptr<SwipeAction> action;
    int indexPath = 0;
};

} // namespace tessivo::swipe
