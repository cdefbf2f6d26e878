#include "AddEventVC/BackgrounCell.h"

namespace tessivo {
namespace {

constexpr double swatchCornerRadius = 24;

} // namespace

BackgrounCell::BackgrounCell() {
    contentView.setCornerRadius(swatchCornerRadius);
    contentView.setClipsToBounds(true);
    contentView.addSubview(premium);
    premium.setHidden(true);
}

void BackgrounCell::showColor(const ColorItem& item) {
    color = item;
    contentView.setBackgroundColor(ui::ColorRef::named(item.color));
}

void BackgrounCell::showGradient(const GradientItem& item, const NamedColors& colors, Console& console) {
    gradient = item;
    const auto layer = std::make_shared<ui::GradientLayer>();
    applyGradientItem(*layer, item, colors, console);
    layer->setFrame({0, 0, side, side});
    layer->setCornerRadius(swatchCornerRadius);
    contentView.insertSublayer(layer, 0);
}

void BackgrounCell::setMarked(bool marked) {
    if (marked)
        premium.setImage(ui::Image::named("check"));
    premium.setHidden(!marked);
}

void BackgrounCell::prepareForReuse() {
    CollectionViewCell::prepareForReuse();
    contentView.removeAllSublayers();
    gradient.reset();
}

} // namespace tessivo
