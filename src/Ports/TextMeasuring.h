#pragma once

#include <string_view>

namespace tessivo {

/// Room in points. Without a limit a length is infinite.
struct TextExtent {
    double width = 0;
    double height = 0;

    friend bool operator==(const TextExtent&, const TextExtent&) = default;
};

/// The system font: size in points, weight from 100 to 900.
struct MeasuredFont {
    double size = 17;
    int weight = 400;
};

/// Tells how much room text takes when it is drawn. Pure, main thread.
class TextMeasuring {
public:
    virtual ~TextMeasuring() = default;

    /// The room that UTF-8 `text` takes, broken between words at the width of `box`; not rounded. A word that
    /// is wider than the box reaches beyond it. Lines beyond the height of the box do not count. Empty text
    /// takes no room.
    [[nodiscard]] virtual TextExtent measure(std::string_view text, MeasuredFont font,
                                             TextExtent box) const = 0;
};

} // namespace tessivo
