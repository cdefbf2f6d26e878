#pragma once

#include "Extension/PreviewView.h"

namespace tessivo {

class Console;
class NamedColors;

/// The card that previews an event that is being made: the default gradient, until a background is chosen.
class EventView final : public PreviewView {
public:
    /// Registers itself as `name` and its parts as `name`.timeLabel and so on. The ports are used at
    /// construction only; a colour that the catalogue lacks stops the program.
    EventView(ui::ControlRegistry& registry, const std::string& name, const NamedColors& colors,
              Console& console);

    std::string eventText;
    std::string dateText;
};

} // namespace tessivo
