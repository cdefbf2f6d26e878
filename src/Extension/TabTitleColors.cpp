#include "Extension/TabTitleColors.h"

#include "Interface/TabBarController.h"

namespace tessivo {

void applySelectedTitleColors(ui::TabBar& tabBar) {
    tabBar.changeItem(0, [](auto& item) { item.selectedTitleColor = ui::ColorRef::named("pastColor"); });
    tabBar.changeItem(1, [](auto& item) { item.selectedTitleColor = ui::ColorRef::named("futureColor"); });
}

} // namespace tessivo
