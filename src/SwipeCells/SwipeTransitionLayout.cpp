#include "SwipeCells/SwipeTransitionLayout.h"

#include "Interface/View.h"

#include <algorithm>

namespace tessivo::swipe {
namespace {

void setOriginX(ui::View& view, double x) {
    ui::Rect frame = view.frame();
    frame.x = x;
    view.setFrame(frame);
}

void setBoundsX(ui::View& view, double x) {
    view.setBoundsOrigin({x, view.bounds().y});
}

} // namespace

void BorderTransitionLayout::visibleWidthChanged(ui::View&, const ActionsViewLayoutContext&) const {}

void BorderTransitionLayout::layoutSubview(ui::View& subview, int index,
                                           const ActionsViewLayoutContext& context) const {
    const double width = context.contentSize.width;
    const double beyond = context.visibleWidth - width;
    setOriginX(subview, (beyond + width * index / context.numberOfActions) * offsetSign(context.orientation));
}

void BorderTransitionLayout::visibleButtonWidths(const ActionsViewLayoutContext& context,
                                                 std::span<double> widths) const {
    const double width = context.contentSize.width;
    std::ranges::fill(widths, width / context.numberOfActions + (context.visibleWidth - width));
}

void DragTransitionLayout::visibleWidthChanged(ui::View& container,
                                               const ActionsViewLayoutContext& context) const {
    setBoundsX(container,
               (context.contentSize.width - context.visibleWidth) * offsetSign(context.orientation));
}

void DragTransitionLayout::layoutSubview(ui::View& subview, int index,
                                         const ActionsViewLayoutContext& context) const {
    setOriginX(subview, context.minimumButtonWidth * index * offsetSign(context.orientation));
}

void DragTransitionLayout::visibleButtonWidths(const ActionsViewLayoutContext& context,
                                               std::span<double> widths) const {
    for (std::size_t index = 0; index < widths.size(); ++index) {
        const double uncovered =
            context.visibleWidth - static_cast<double>(index) * context.minimumButtonWidth;
        widths[index] = std::max(0.0, std::min(context.minimumButtonWidth, uncovered));
    }
}

void RevealTransitionLayout::visibleWidthChanged(ui::View& container,
                                                 const ActionsViewLayoutContext& context) const {
    const double full = context.minimumButtonWidth * context.numberOfActions;
    setBoundsX(container, (full - context.visibleWidth) * offsetSign(context.orientation));
}

void RevealTransitionLayout::visibleButtonWidths(const ActionsViewLayoutContext& context,
                                                 std::span<double> widths) const {
    DragTransitionLayout::visibleButtonWidths(context, widths);
    std::ranges::reverse(widths);
}

std::unique_ptr<const SwipeTransitionLayout> makeTransitionLayout(SwipeTransitionStyle style) {
    switch (style) {
    case SwipeTransitionStyle::Border:
        return std::make_unique<BorderTransitionLayout>();
    case SwipeTransitionStyle::Drag:
        return std::make_unique<DragTransitionLayout>();
    case SwipeTransitionStyle::Reveal:
        break;
    }
    return std::make_unique<RevealTransitionLayout>();
}

} // namespace tessivo::swipe
