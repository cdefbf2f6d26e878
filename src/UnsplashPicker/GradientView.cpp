#include "UnsplashPicker/GradientView.h"

namespace tessivo::unsplash {

void GradientView::setColors(const std::vector<Color>& colors) {
    removeAllSublayers();
    if (colors.size() < 2)
        return;
    const auto layer = std::make_shared<ui::GradientLayer>();
    layer->setColors(colors.front().color, colors.back().color);
    layer->setStartPoint({0.5, colors.front().location});
    layer->setEndPoint({0.5, colors.back().location});
    insertSublayer(layer, 0);
    setNeedsLayout();
}

void GradientView::layoutSubviews() {
    for (const auto& layer : sublayers())
        layer->setFrame(bounds());
}

} // namespace tessivo::unsplash
