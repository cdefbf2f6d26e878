#pragma once

#include "Interface/Switch.h"

namespace tessivo {

class Console;
class NamedColors;

/// Gives a switch the program's own fill, which shows while it is on. A
/// colour that the catalogue lacks stops the program.
void addSwitchGradient(ui::Switch& control, const NamedColors& colors, Console& console);

/// Shows or hides that fill.
void showSwitchGradient(ui::Switch& control, bool shown);

} // namespace tessivo
