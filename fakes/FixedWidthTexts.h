#pragma once

#include "Ports/TextMeasuring.h"

#include <algorithm>
#include <cmath>

namespace tessivo::fakes {

/// A typewriter: every byte is half the font's size wide, every line 1.2 times its size high.
class FixedWidthTexts final : public TextMeasuring {
public:
    TextExtent measure(std::string_view text, MeasuredFont font, TextExtent box) const override {
        if (text.empty())
            return {};
        const double glyph = font.size / 2;
        const double line = font.size * 1.2;
        double widest = 0;
        double present = 0;
        double lines = 1;
        while (!text.empty()) {
            const auto end = std::min(text.find(' '), text.size());
            const double word = glyph * static_cast<double>(end);
            text.remove_prefix(std::min(end + 1, text.size()));
            if (present > 0 && present + glyph + word > box.width) {
                ++lines;
                present = 0;
            }
            present += (present > 0 ? glyph : 0) + word;
            widest = std::max(widest, present);
        }
        const double fitting =
            std::isfinite(box.height) ? std::max(1.0, std::floor(box.height / line)) : lines;
        return {widest, std::min(lines, fitting) * line};
    }
};

} // namespace tessivo::fakes
