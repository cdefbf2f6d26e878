#include "Support/StartUp/Screens.h"

#include "AddEventVC/EditEventBackgroundViewController.h"
#include "AddEventVC/EventTitleViewController.h"
#include "EditEventVC/EditEventDateAndTimeViewController.h"
#include "EditEventVC/EditEventTitleViewController.h"
#include "EditEventVC/EditReminderViewController.h"
#include "Extension/TabBar/CustomTabBarController.h"
#include "MainVC/FullEventViewController.h"
#include "OnBordingVC/OnboardingViewController.h"
#include "SettingVC/SettingController.h"

namespace tessivo {
namespace {

template <class Kind>
std::shared_ptr<ui::ViewController> edit(SharedServices& services, std::shared_ptr<EventCoreData> eventData) {
    auto screen = std::make_shared<Kind>(services);
    screen->eventData = std::move(eventData);
    return screen;
}

} // namespace

std::shared_ptr<ui::ViewController> Screens::makeTabShell() {
    return std::make_shared<CustomTabBarController>(*services_);
}

std::shared_ptr<ui::ViewController> Screens::makeAddWizard() {
    return std::make_shared<EventTitleViewController>(*services_);
}

std::shared_ptr<ui::ViewController> Screens::makeFullEvent(std::shared_ptr<EventCoreData> record) {
    const auto screen = std::make_shared<FullEventViewController>(*services_);
    screen->record = std::move(record);
    return screen;
}

std::shared_ptr<ui::ViewController> Screens::makeEdit(EditScreen kind,
                                                      std::shared_ptr<EventCoreData> eventData) {
    switch (kind) {
    case EditScreen::Title:
        return edit<EditEventTitleViewController>(*services_, std::move(eventData));
    case EditScreen::DateAndTime:
        return edit<EditEventDateAndTimeViewController>(*services_, std::move(eventData));
    case EditScreen::Reminder:
        return edit<EditReminderViewController>(*services_, std::move(eventData));
    case EditScreen::Background:
        return edit<EditEventBackgroundViewController>(*services_, std::move(eventData));
    }
    return nullptr;
}

std::shared_ptr<ui::ViewController> Screens::makeSettings(std::weak_ptr<SettingControllerDelegate> delegate) {
    auto settings = std::make_shared<SettingController>(*services_);
    settings->delegateSettting = std::move(delegate);
    return settings;
}

std::shared_ptr<ui::ViewController> Screens::makeOnboarding() {
    return std::make_shared<OnboardingViewController>(*services_);
}

} // namespace tessivo
