#include "Extension/PreviewView.h"

namespace tessivo {
namespace {

constexpr double cardCornerRadius = 16;
constexpr double margin = 16;
constexpr double height = 200;
constexpr double largeScreenDivisor = 4.06;

} // namespace

PreviewView::PreviewView(ui::ControlRegistry& registry, const Names& names)
    : View(registry, names.view),
      timeLabel(registry, names.timeLabel),
      eventInformationLabel(registry, names.eventInformationLabel),
      photoView(registry, names.photoView) {
    setCornerRadius(cardCornerRadius);
    setClipsToBounds(true);
    timeLabel.setNumberOfLines(2);
    timeLabel.setAlignment(ui::TextAlignment::Right);
    eventInformationLabel.setNumberOfLines(2);
    eventInformationLabel.setAlignment(ui::TextAlignment::Left);
    addSubview(photoView);
    addSubview(timeLabel);
    addSubview(eventInformationLabel);
}

ui::Size PreviewView::sizeOn(const ui::MainScreen& screen) {
    return {screen.width() - 2 * margin, screen.isLarge() ? screen.height() / largeScreenDivisor : height};
}

} // namespace tessivo
