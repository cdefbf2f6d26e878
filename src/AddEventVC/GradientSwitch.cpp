#include "AddEventVC/GradientSwitch.h"

#include "AddEventVC/Palette.h"

namespace tessivo {
namespace {

constexpr ui::Rect switchFrame{0, 0, 51, 31};
constexpr double switchCornerRadius = 15.5;

} // namespace

void addSwitchGradient(ui::Switch& control, const NamedColors& colors, Console& console) {
    const auto layer = std::make_shared<ui::GradientLayer>();
    applyGradientItem(*layer, {"Gradient61", "Gradient62", 1}, colors, console);
    layer->setFrame(switchFrame);
    layer->setCornerRadius(switchCornerRadius);
    control.insertSublayer(layer, 0);
}

void showSwitchGradient(ui::Switch& control, bool shown) {
    control.sublayers().front()->setHidden(!shown);
}

} // namespace tessivo
