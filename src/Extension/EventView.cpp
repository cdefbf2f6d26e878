#include "Extension/EventView.h"

#include "AddEventVC/Palette.h"

namespace tessivo {
namespace {

constexpr double cardCornerRadius = 16;
constexpr double margin = 16;
constexpr double height = 200;
constexpr double largeScreenDivisor = 4.06;

} // namespace

EventView::EventView(ui::ControlRegistry& registry, const std::string& name, const NamedColors& colors,
                     Console& console)
    : View(registry, name),
      timeLabel(registry, name + ".timeLabel"),
      eventInformationLabel(registry, name + ".eventInformationLabel"),
      photoView(registry, name + ".photoView") {
    setCornerRadius(cardCornerRadius);
    setClipsToBounds(true);
    const auto background = std::make_shared<ui::GradientLayer>();
    applyGradientItem(*background, sectionsGradient[defaultGradientRow], colors, console);
    insertSublayer(background, 0);

    timeLabel.setNumberOfLines(2);
    timeLabel.setAlignment(ui::TextAlignment::Right);
    timeLabel.setTextColor(ui::ColorRef::named("background"));
    eventInformationLabel.setNumberOfLines(2);
    eventInformationLabel.setAlignment(ui::TextAlignment::Left);
    photoView.setContentMode(ui::ContentMode::Center);
    addSubview(photoView);
    addSubview(timeLabel);
    addSubview(eventInformationLabel);
}

ui::Size EventView::sizeOn(const ui::MainScreen& screen) {
    return {screen.width() - 2 * margin, screen.isLarge() ? screen.height() / largeScreenDivisor : height};
}

} // namespace tessivo
