#include "Support/StartUp/AppDelegate.h"

#include "Event/FetchEventDataType.h"
#include "Interface/NavigationController.h"
#include "Interface/PresentationStack.h"
#include "Ports/Console.h"
#include "Ports/SavedSettings.h"
#include "Support/RemoteSwitches/FirebaseManager.h"
#include "Support/ScreenFactory.h"
#include "Support/SettingKeys.h"
#include "Support/SharedServices.h"

namespace tessivo {
namespace {

struct FirstValue {
    std::string_view key;
    long value;
};

constexpr FirstValue firstValues[] = {
    {settingKeys::defaultScreen, 0},
    {settingKeys::eventSize, 1},
    {settingKeys::secondOpen, 0},
};

} // namespace

void AppDelegate::didFinishLaunching(ui::PresentationStack& window) {
    services_.platform().remoteNotifications.onRegistration(
        [this](const auto& deviceToken) { didRegisterForRemoteNotifications(deviceToken); });
    fillAbsentSettings();
    countLaunch();
    services_.fetchEventDataType().refreshEvents();
    ScreenFactory& screens = services_.screens();
    if (services_.platform().settings.boolean(settingKeys::isFirstLaunch).value_or(false))
        window.setRoot(screens.makeTabShell());
    else
        window.setRoot(std::make_shared<ui::NavigationController>(window.window(), screens.makeOnboarding()));
    // Twice at each start; nothing waits for either.
    services_.firebaseManager().fetch();
    services_.firebaseManager().fetch();
}

void AppDelegate::didRegisterForRemoteNotifications(const RemoteNotifications::DeviceToken& deviceToken) {
    constexpr std::string_view digits = "0123456789abcdef";
    std::string text;
    for (const std::uint8_t byte : deviceToken) {
        text += digits[byte >> 4U];
        text += digits[byte & 15U];
    }
    services_.platform().console.print("Device Token: " + text);
}

void AppDelegate::fillAbsentSettings() {
    SavedSettings& settings = services_.platform().settings;
    for (const auto& [key, value] : firstValues) {
        if (!settings.contains(key))
            settings.setInteger(key, value);
    }
}

void AppDelegate::countLaunch() {
    const Platform& platform = services_.platform();
    const auto launches = platform.settings.integer(settingKeys::secondOpen);
    if (!launches)
        platform.console.stopProgram("The launch counter cannot be read.");
    platform.settings.setInteger(settingKeys::secondOpen, *launches + 1);
}

} // namespace tessivo
