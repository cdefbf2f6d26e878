#pragma once

#include <optional>

namespace tessivo::swipe {

/// The side from which actions come. Left actions move the cell to the right, right ones to the left.
enum class SwipeActionsOrientation { Left, Right };

/// The sign of the orientation in all arithmetic of offsets.
[[nodiscard]] constexpr double offsetSign(SwipeActionsOrientation orientation) {
    return orientation == SwipeActionsOrientation::Left ? -1.0 : 1.0;
}

/// The orientation of exactly that sign; empty for any other number.
[[nodiscard]] constexpr std::optional<SwipeActionsOrientation> orientationOf(double sign) {
    if (sign == -1.0)
        return SwipeActionsOrientation::Left;
    if (sign == 1.0)
        return SwipeActionsOrientation::Right;
    return std::nullopt;
}

} // namespace tessivo::swipe
