#include "bridge/MenuItem.h"

namespace tessivo::shell {

QList<MenuEntry> MenuItem::entries() const {
    QList<MenuEntry> entries;
    for (const auto& element : levels_.back())
        entries.push_back({QString::fromStdString(element.title), QString::fromStdString(element.symbol),
                           !element.children.empty()});
    return entries;
}

void MenuItem::choose(int index) {
    const ui::MenuElement element = levels_.back().at(static_cast<std::size_t>(index));
    if (!element.children.empty()) {
        levels_.push_back(element.children);
        Q_EMIT entriesChanged();
        return;
    }
    Q_EMIT closed();
    if (element.handler)
        element.handler();
}

void MenuItem::goBack() {
    if (!nested())
        return;
    levels_.pop_back();
    Q_EMIT entriesChanged();
}

} // namespace tessivo::shell
