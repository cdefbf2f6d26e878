#pragma once

#include "Interface/Label.h"

namespace tessivo {

/// A row of an authoring screen that shows a value and takes taps.
class Label final : public ui::Label {
public:
    Label(ui::ControlRegistry& registry, std::string name, std::string text);
};

/// The small heading over a row.
class InfoLabel final : public ui::Label {
public:
    InfoLabel(ui::ControlRegistry& registry, std::string name, std::string text);
};

/// Calls `tapped` at each tap on `view`; binding twice calls twice.
void bindTap(ui::View& view, std::function<void()> tapped);

} // namespace tessivo
