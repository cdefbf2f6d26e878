#pragma once

#include "SwipeCells/SwipeExpanding.h"
#include "SwipeCells/SwipeExpansionStyle.h"

#include <memory>
#include <optional>

namespace tessivo::swipe {

enum class SwipeTransitionStyle { Border, Drag, Reveal };

/// With `CenterFirstBaseline` a text is placed as if its first line were the only one, so that the buttons of
/// a row keep their images level.
enum class SwipeVerticalAlignment { CenterFirstBaseline, Center };

/// The owner's settings of one swipe.
struct SwipeOptions {
    SwipeTransitionStyle transitionStyle = SwipeTransitionStyle::Border;
    std::optional<SwipeExpansionStyle> expansionStyle;
    std::shared_ptr<const SwipeExpanding> expansionDelegate;
    std::optional<ui::ColorRef> backgroundColor;
    std::optional<double> maximumButtonWidth;
    std::optional<double> minimumButtonWidth;
    SwipeVerticalAlignment buttonVerticalAlignment = SwipeVerticalAlignment::CenterFirstBaseline;
    std::optional<double> buttonPadding; ///< empty: 8
    std::optional<double> buttonSpacing; ///< empty: 8
};

} // namespace tessivo::swipe
