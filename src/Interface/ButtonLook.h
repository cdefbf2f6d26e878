#pragma once

#include "Interface/Geometry.h"
#include "Interface/Text.h"

#include <string>

namespace tessivo::ui {

/// What is drawn of a button that places its title and its picture by itself, in its present state.
/// Rectangles are in the button's own space.
class ButtonLook {
public:
    virtual ~ButtonLook() = default;

    [[nodiscard]] virtual Rect titleRect() const = 0;
    [[nodiscard]] virtual Rect imageRect() const = 0;
    [[nodiscard]] virtual ColorRef presentTitleColor() const = 0;
    /// Empty where there is no picture.
    [[nodiscard]] virtual std::string presentImageName() const = 0;
};

} // namespace tessivo::ui
