#include "Support/StartUp/Screens.h"

#include "AddEventVC/EventTitleViewController.h"
#include "Extension/TabBar/CustomTabBarController.h"

namespace tessivo {

std::shared_ptr<ui::ViewController> Screens::makeTabShell() {
    return std::make_shared<CustomTabBarController>(*services_);
}

std::shared_ptr<ui::ViewController> Screens::makeAddWizard() {
    return std::make_shared<EventTitleViewController>(*services_);
}

std::shared_ptr<ui::ViewController> Screens::makeFullEvent(std::shared_ptr<EventCoreData>) {
    return nullptr;
}

std::shared_ptr<ui::ViewController> Screens::makeEdit(EditScreen, std::shared_ptr<EventCoreData>) {
    return nullptr;
}

std::shared_ptr<ui::ViewController> Screens::makeSettings(std::function<void()>) {
    return nullptr;
}

void Screens::openNotificationSettings() {
    if (openNotificationSettings_)
        openNotificationSettings_();
}

} // namespace tessivo
