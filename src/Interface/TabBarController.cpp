#include "Interface/TabBarController.h"

namespace tessivo::ui {

void TabBarController::setViewControllers(std::vector<std::shared_ptr<ViewController>> screens,
                                          std::vector<TabBarItem> items) {
    if (showing_)
        childrenWillDisappear();
    for (const auto& screen : screens_)
        screen->setParent(nullptr);
    screens_ = std::move(screens);
    for (const auto& screen : screens_)
        screen->setParent(this);
    selected_ = 0;
    tabBar.setItems(std::move(items));
    tabsChanges_.emit();
}

ViewController* TabBarController::selectedViewController() const {
    return selected_ < screens_.size() ? screens_[selected_].get() : nullptr;
}

void TabBarController::setSelectedIndex(std::size_t index) {
    if (index >= screens_.size() || index == selected_)
        return;
    const bool wasShowing = showing_;
    if (wasShowing)
        childrenWillDisappear();
    selected_ = index;
    if (wasShowing) {
        childrenWillAppear();
        tabsChanges_.emit();
        childrenDidAppear();
    } else {
        tabsChanges_.emit();
    }
}

void TabBarController::select(std::size_t index) {
    if (index >= screens_.size() || !takesActs())
        return;
    setSelectedIndex(index);
    if (const auto listener = delegate.lock())
        listener->didSelectViewController(*this, *screens_[index]);
}

void TabBarController::childrenWillAppear() {
    showing_ = true;
    if (auto* screen = selectedViewController())
        screen->beginAppearing();
}

void TabBarController::childrenDidAppear() {
    if (auto* screen = selectedViewController())
        screen->finishAppearing();
}

void TabBarController::childrenWillDisappear() {
    showing_ = false;
    if (auto* screen = selectedViewController())
        screen->beginDisappearing();
}

} // namespace tessivo::ui
