#pragma once

#include "SwipeCells/SwipeActionsOrientation.h"

namespace tessivo::swipe {

enum class SwipeState {
    Center,           ///< at rest, no actions view; also on the way there after a release
    Left,             ///< open on the left side
    Right,            ///< open on the right side
    Dragging,         ///< under the finger
    AnimatingToCenter ///< on the way back after a hide
};

[[nodiscard]] constexpr bool isOffCenter(SwipeState state) {
    return state != SwipeState::Center;
}

[[nodiscard]] constexpr bool isOpen(SwipeState state) {
    return state == SwipeState::Left || state == SwipeState::Right;
}

[[nodiscard]] constexpr SwipeState stateOf(SwipeActionsOrientation orientation) {
    return orientation == SwipeActionsOrientation::Left ? SwipeState::Left : SwipeState::Right;
}

} // namespace tessivo::swipe
