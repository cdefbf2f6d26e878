#include "Extension/EventView.h"

#include "AddEventVC/Palette.h"

namespace tessivo {

EventView::EventView(ui::ControlRegistry& registry, const std::string& name, const NamedColors& colors,
                     Console& console)
    : PreviewView(registry,
                  {name, name + ".timeLabel", name + ".eventInformationLabel", name + ".photoView"}) {
    const auto background = std::make_shared<ui::GradientLayer>();
    applyGradientItem(*background, sectionsGradient[defaultGradientRow], colors, console);
    insertSublayer(background, 0);
    timeLabel.setTextColor(ui::ColorRef::named("background"));
    photoView.setContentMode(ui::ContentMode::Center);
}

} // namespace tessivo
