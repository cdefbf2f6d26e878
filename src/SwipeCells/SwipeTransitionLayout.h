#pragma once

#include "SwipeCells/ActionsViewLayoutContext.h"
#include "SwipeCells/SwipeOptions.h"

#include <memory>
#include <span>

namespace tessivo::ui {
class View;
}

namespace tessivo::swipe {

/// How the buttons of a row appear while the row widens. Stateless arithmetic, in points. Main thread.
class SwipeTransitionLayout {
public:
    virtual ~SwipeTransitionLayout() = default;

    /// Moves the bounds of `container`, the row, where the layout scrolls its buttons.
    virtual void visibleWidthChanged(ui::View& container, const ActionsViewLayoutContext& context) const = 0;
    /// Places the ground of button `index` sideways; its height and width stay.
    virtual void layoutSubview(ui::View& subview, int index,
                               const ActionsViewLayoutContext& context) const = 0;
    /// Fills in how much of each button is seen; `widths` has one place per action. Evenly shared widths may
    /// be below 0.
    virtual void visibleButtonWidths(const ActionsViewLayoutContext& context,
                                     std::span<double> widths) const = 0;
};

/// All buttons share the row evenly.
class BorderTransitionLayout final : public SwipeTransitionLayout {
public:
    void visibleWidthChanged(ui::View& container, const ActionsViewLayoutContext& context) const override;
    void layoutSubview(ui::View& subview, int index, const ActionsViewLayoutContext& context) const override;
    void visibleButtonWidths(const ActionsViewLayoutContext& context,
                             std::span<double> widths) const override;
};

/// The buttons move along with the cell, the nearest to it first.
class DragTransitionLayout : public SwipeTransitionLayout {
public:
    void visibleWidthChanged(ui::View& container, const ActionsViewLayoutContext& context) const override;
    void layoutSubview(ui::View& subview, int index, const ActionsViewLayoutContext& context) const override;
    void visibleButtonWidths(const ActionsViewLayoutContext& context,
                             std::span<double> widths) const override;
};

/// The buttons stand still and the cell uncovers them.
class RevealTransitionLayout final : public DragTransitionLayout {
public:
    void visibleWidthChanged(ui::View& container, const ActionsViewLayoutContext& context) const override;
    void visibleButtonWidths(const ActionsViewLayoutContext& context,
                             std::span<double> widths) const override;
};

[[nodiscard]] std::unique_ptr<const SwipeTransitionLayout> makeTransitionLayout(SwipeTransitionStyle style);

} // namespace tessivo::swipe
