#include "Support/RemoteSwitches/FirebaseManager.h"

#include "Ports/Console.h"
#include "Ports/MainQueue.h"
#include "Ports/SavedSettings.h"
#include "Support/RemoteSwitches/RemoteConfig.h"
#include "Support/SettingKeys.h"

#include <array>
#include <string>

namespace tessivo {
namespace {

constexpr std::array switches{settingKeys::rateUs, settingKeys::adsShow};

} // namespace

FirebaseManager::FirebaseManager(RemoteConfig& shared, SavedSettings& settings, MainQueue& mainQueue,
                                 Console& console)
    : shared_(shared), settings_(settings), mainQueue_(mainQueue), console_(console) {}

void FirebaseManager::fetch() {
    remoteConfig_ = &shared_;
    remoteConfig_->fetchWithCompletionHandler(
        [weak = weak_from_this(), &shared = shared_, &settings = settings_, &mainQueue = mainQueue_,
         &console = console_](RemoteConfig::FetchStatus status, const std::optional<Error>& error) {
            if (status != RemoteConfig::FetchStatus::Success) {
                console.print("Error: " + (error ? error->description : "No error available."));
                settings.setText(settingKeys::adsShow, "2");
                settings.setText(settingKeys::rateUs, "0");
                return;
            }
            shared.activateWithCompletion({});
            mainQueue.post([weak] {
                if (const auto manager = weak.lock())
                    manager->store();
            });
        });
}

void FirebaseManager::store() {
    std::array<std::string, switches.size()> values;
    for (std::size_t i = 0; i < switches.size(); ++i) {
        if (remoteConfig_) {
            values[i] = remoteConfig_->stringValue(switches[i]);
            settings_.setText(switches[i], values[i]);
        } else {
            settings_.remove(switches[i]);
        }
    }
    for (std::size_t i = 0; i < switches.size(); ++i)
        console_.print(values[i] + " : " + std::string(switches[i]));
}

} // namespace tessivo
