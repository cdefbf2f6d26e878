#pragma once

#include "Interface/Geometry.h"
#include "SwipeCells/SwipeState.h"

#include <memory>
#include <optional>

namespace tessivo::ui {
class PanGestureRecognizer;
class View;
} // namespace tessivo::ui

namespace tessivo::swipe {

class SwipeActionsView;

/// What the controller needs of its cell, and of the other cells of the list. Main thread.
class Swipeable {
public:
    virtual ~Swipeable() = default;

    [[nodiscard]] virtual SwipeState state() const = 0;
    virtual void setState(SwipeState state) = 0;
    [[nodiscard]] virtual SwipeActionsView* actionsView() const = 0;
    /// Takes the row that stood before off the cell; null for none.
    virtual void setActionsView(std::shared_ptr<SwipeActionsView> view) = 0;
    /// The cell itself.
    [[nodiscard]] virtual ui::View& swipedView() = 0;
    [[nodiscard]] virtual const ui::View& swipedView() const = 0;
    /// The item that the cell shows; empty where no list holds it.
    [[nodiscard]] virtual std::optional<int> indexPath() const = 0;
    [[nodiscard]] virtual const ui::PanGestureRecognizer& panGestureRecognizer() const = 0;
    [[nodiscard]] virtual ui::Insets swipeLayoutMargins() const = 0;
    /// Closes the cell where it is open; otherwise nothing.
    virtual void hideSwipe(bool animated) = 0;
};

} // namespace tessivo::swipe
