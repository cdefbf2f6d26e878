#pragma once

#include "Interface/Geometry.h"
#include "Ports/NamedColors.h"

#include <functional>
#include <utility>

namespace tessivo::ui {

/// A linear fade between two colours, drawn behind the subviews of the view whose layer it is in. The points
/// lie on the unit square whose (0, 0) is the layer's top left corner.
class GradientLayer final {
public:
    void setColors(Color first, Color second) {
        change(first_, first);
        change(second_, second);
    }
    void setStartPoint(Point point) { change(startPoint_, point); }
    void setEndPoint(Point point) { change(endPoint_, point); }
    void setFrame(Rect frame) { change(frame_, frame); }
    void setCornerRadius(double radius) { change(cornerRadius_, radius); }
    void setHidden(bool hidden) { change(hidden_, hidden); }

    [[nodiscard]] std::pair<Color, Color> colors() const { return {first_, second_}; }
    [[nodiscard]] Point startPoint() const { return startPoint_; }
    [[nodiscard]] Point endPoint() const { return endPoint_; }
    [[nodiscard]] Rect frame() const { return frame_; }
    [[nodiscard]] double cornerRadius() const { return cornerRadius_; }
    [[nodiscard]] bool isHidden() const { return hidden_; }

private:
    friend class View;

    template <class Value>
    void change(Value& held, const Value& value) {
        if (std::exchange(held, value) != value && changed_)
            changed_();
    }

    std::function<void()> changed_; ///< set by the view that shows the layer
    Color first_;
    Color second_;
    Point startPoint_{0.5, 0};
    Point endPoint_{0.5, 1};
    Rect frame_;
    double cornerRadius_ = 0;
    bool hidden_ = false;
};

} // namespace tessivo::ui
