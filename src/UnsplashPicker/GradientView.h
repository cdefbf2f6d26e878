#pragma once

#include "Interface/View.h"

namespace tessivo::unsplash {

/// A view that is a fade from top to bottom.
class GradientView final : public ui::View {
public:
    using View::View;

    /// A colour and where it stands, from 0 at the top to 1 at the bottom.
    struct Color {
        tessivo::Color color;
        double location = 0;
    };

    /// The first and the last colour; without two there is no fade.
    void setColors(const std::vector<Color>& colors);

protected:
    void layoutSubviews() override;
};

} // namespace tessivo::unsplash
