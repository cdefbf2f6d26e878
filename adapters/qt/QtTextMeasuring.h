#pragma once

#include "Ports/TextMeasuring.h"

namespace tessivo {

/// The room that text takes in the application's font.
class QtTextMeasuring final : public TextMeasuring {
public:
    TextExtent measure(std::string_view text, MeasuredFont font, TextExtent box) const override;
};

} // namespace tessivo
