#pragma once

namespace tessivo {

namespace ui {
class TabBar;
}

/// Gives the Past and the Future tab the colours that their titles have while they are selected.
void applySelectedTitleColors(ui::TabBar& tabBar);

} // namespace tessivo
