#pragma once

#include <functional>
#include <string>
#include <vector>

namespace tessivo::ui {

/// One line of a menu: an action where it has a handler, a submenu where it has children.
struct MenuElement {
    std::string title;
    std::string symbol;
    std::function<void()> handler;
    std::vector<MenuElement> children;
};

/// A menu without a title, its elements in the order in which they are shown.
struct Menu {
    std::vector<MenuElement> elements;
};

} // namespace tessivo::ui
