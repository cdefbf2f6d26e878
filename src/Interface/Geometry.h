#pragma once

#include <algorithm>

namespace tessivo::ui {

/// All lengths are points; y grows downwards.

struct Point {
    double x = 0;
    double y = 0;

    friend bool operator==(const Point&, const Point&) = default;
};

struct Size {
    double width = 0;
    double height = 0;

    friend bool operator==(const Size&, const Size&) = default;
};

struct Insets {
    double top = 0;
    double left = 0;
    double bottom = 0;
    double right = 0;

    friend bool operator==(const Insets&, const Insets&) = default;
};

struct Rect {
    double x = 0;
    double y = 0;
    double width = 0;
    double height = 0;

    [[nodiscard]] constexpr double minX() const { return x; }
    [[nodiscard]] constexpr double midX() const { return x + width / 2; }
    [[nodiscard]] constexpr double maxX() const { return x + width; }
    [[nodiscard]] constexpr double minY() const { return y; }
    [[nodiscard]] constexpr double midY() const { return y + height / 2; }
    [[nodiscard]] constexpr double maxY() const { return y + height; }
    [[nodiscard]] constexpr Point origin() const { return {x, y}; }
    [[nodiscard]] constexpr Size size() const { return {width, height}; }

    /// The near edges belong to the rectangle, the far ones do not.
    [[nodiscard]] constexpr bool contains(Point point) const {
        return point.x >= minX() && point.x < maxX() && point.y >= minY() && point.y < maxY();
    }

    /// True only where the two share an area above zero.
    [[nodiscard]] constexpr bool intersects(const Rect& other) const {
        return minX() < other.maxX() && other.minX() < maxX() && minY() < other.maxY() &&
               other.minY() < maxY();
    }

    /// The shared area; all zeros where there is none.
    [[nodiscard]] constexpr Rect intersection(const Rect& other) const {
        if (!intersects(other))
            return {};
        const double left = std::max(minX(), other.minX());
        const double top = std::max(minY(), other.minY());
        return {left, top, std::min(maxX(), other.maxX()) - left, std::min(maxY(), other.maxY()) - top};
    }

    friend bool operator==(const Rect&, const Rect&) = default;
};

} // namespace tessivo::ui
