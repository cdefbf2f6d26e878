#pragma once

#include "Ports/Subscription.h"
#include "Support/Platform.h"

#include <functional>
#include <memory>
#include <utility>
#include <vector>

namespace tessivo {

class AlertManager;
class CoreDataStack;
class EventImages;
class FetchEventDataType;
class FirebaseManager;
class LocalizationVariables;
class MailManager;
class NetworkActivityIndicatorManager;
class ReminderScheduler;
class RemoteConfig;
class ScreenFactory;

namespace unsplash {
class PickerServices;
}

namespace ui {
class PictureLoader;
struct WindowContext;
} // namespace ui

/// What the program's screens share, each made on first use and kept for the life of the program. Main
/// thread.
class SharedServices {
public:
    /// All of these outlive the services.
    SharedServices(const Platform& platform, ui::WindowContext& window, ScreenFactory& screens);
    ~SharedServices();
    SharedServices(const SharedServices&) = delete;
    SharedServices& operator=(const SharedServices&) = delete;

    [[nodiscard]] const Platform& platform() const { return platform_; }
    [[nodiscard]] ui::WindowContext& window() const { return window_; }
    [[nodiscard]] ScreenFactory& screens() const { return screens_; }

    /// The stack through which all changes go.
    [[nodiscard]] CoreDataStack& coreDataStack();
    /// A stack of the caller's own, for reading.
    [[nodiscard]] std::unique_ptr<CoreDataStack> makeCoreDataStack() const;
    [[nodiscard]] FetchEventDataType& fetchEventDataType();
    [[nodiscard]] ReminderScheduler& reminderScheduler();
    [[nodiscard]] const LocalizationVariables& localizationVariables();
    /// The program's way from an address to a picture.
    [[nodiscard]] ui::PictureLoader& pictureLoader();
    [[nodiscard]] EventImages& eventImages();
    [[nodiscard]] unsplash::PickerServices& photoPicker();
    [[nodiscard]] FirebaseManager& firebaseManager();
    [[nodiscard]] NetworkActivityIndicatorManager& networkActivityIndicatorManager();
    [[nodiscard]] MailManager& mailManager();
    [[nodiscard]] AlertManager& alertManager();

    /// Opens the machine's page on which the user may allow notifications, where it has one.
    std::function<void()> openNotificationSettings = [] {};

    /// Keeps something going for the life of the program, whoever started it.
    void keep(Subscription subscription) { kept_.push_back(std::move(subscription)); }

private:
    Platform platform_;
    ui::WindowContext& window_;
    ScreenFactory& screens_;
    std::unique_ptr<CoreDataStack> coreDataStack_;
    std::unique_ptr<ReminderScheduler> reminderScheduler_;
    std::unique_ptr<FetchEventDataType> fetchEventDataType_;
    std::unique_ptr<LocalizationVariables> localizationVariables_;
    std::shared_ptr<ui::PictureLoader> pictureLoader_;
    std::unique_ptr<EventImages> eventImages_;
    std::unique_ptr<unsplash::PickerServices> photoPicker_;
    std::unique_ptr<RemoteConfig> remoteConfig_;
    std::shared_ptr<FirebaseManager> firebaseManager_;
    std::unique_ptr<NetworkActivityIndicatorManager> networkActivityIndicatorManager_;
    std::unique_ptr<MailManager> mailManager_;
    std::unique_ptr<AlertManager> alertManager_;
    std::vector<Subscription> kept_;
};

} // namespace tessivo
