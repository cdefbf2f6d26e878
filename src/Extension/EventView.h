#pragma once

#include "Interface/ControlRegistry.h"
#include "Interface/ImageView.h"
#include "Interface/Label.h"
#include "Interface/MainScreen.h"
#include "Interface/View.h"

namespace tessivo {

class Console;
class NamedColors;

/// The card that previews an event while it is being made.
class EventView final : public ui::View {
public:
    /// Registers itself as `name` and its parts as `name`.timeLabel and so on. The ports are used at
    /// construction only; a colour that the catalogue lacks stops the program.
    EventView(ui::ControlRegistry& registry, const std::string& name, const NamedColors& colors,
              Console& console);

    ui::Label timeLabel;
    ui::Label eventInformationLabel;
    ui::ImageView photoView;
    std::string eventText;
    std::string dateText;

    /// The card's size on a screen: its width less a margin on each side.
    [[nodiscard]] static ui::Size sizeOn(const ui::MainScreen& screen);
};

} // namespace tessivo
