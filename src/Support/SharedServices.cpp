#include "Support/SharedServices.h"

#include "Event/CoreDataStack.h"
#include "Event/FetchEventDataType.h"
#include "Event/ReminderScheduler.h"
#include "Interface/PictureLoader.h"
#include "Interface/ViewController.h"
#include "Ports/Device.h"
#include "Support/Addresses.h"
#include "Support/EventImages.h"
#include "Support/Feedback/AlertManager.h"
#include "Support/Feedback/MailManager.h"
#include "Support/Feedback/NetworkActivityIndicatorManager.h"
#include "Support/LocalizationVariables.h"
#include "Support/RemoteSwitches/FirebaseManager.h"
#include "Support/RemoteSwitches/RemoteConfig.h"
#include "UnsplashPicker/PickerServices.h"

namespace tessivo {

SharedServices::SharedServices(const Platform& platform, ui::WindowContext& window, ScreenFactory& screens)
    : platform_(platform), window_(window), screens_(screens) {}

SharedServices::~SharedServices() = default;

CoreDataStack& SharedServices::coreDataStack() {
    if (!coreDataStack_)
        coreDataStack_ = makeCoreDataStack();
    return *coreDataStack_;
}

std::unique_ptr<CoreDataStack> SharedServices::makeCoreDataStack() const {
    return std::make_unique<CoreDataStack>(platform_.eventStore, platform_.console);
}

ReminderScheduler& SharedServices::reminderScheduler() {
    if (!reminderScheduler_)
        reminderScheduler_ =
            std::make_unique<ReminderScheduler>(platform_.notificationCenter, platform_.calendar,
                                                platform_.dateFormatters, platform_.clock, platform_.console);
    return *reminderScheduler_;
}

FetchEventDataType& SharedServices::fetchEventDataType() {
    if (!fetchEventDataType_)
        fetchEventDataType_ = std::make_unique<FetchEventDataType>(
            platform_.eventStore, coreDataStack(), reminderScheduler(), platform_.dateFormatters,
            platform_.calendar, platform_.clock, platform_.console);
    return *fetchEventDataType_;
}

const LocalizationVariables& SharedServices::localizationVariables() {
    if (!localizationVariables_)
        localizationVariables_ = std::make_unique<LocalizationVariables>(platform_.texts);
    return *localizationVariables_;
}

ui::PictureLoader& SharedServices::pictureLoader() {
    if (!pictureLoader_)
        pictureLoader_ = std::make_shared<ui::PictureLoader>(ui::PictureLoader::Machine{
            platform_.http, platform_.background, platform_.images, platform_.mainQueue, platform_.console});
    return *pictureLoader_;
}

EventImages& SharedServices::eventImages() {
    if (!eventImages_)
        eventImages_ = std::make_unique<EventImages>(platform_, window_.screen, pictureLoader());
    return *eventImages_;
}

unsplash::PickerServices& SharedServices::photoPicker() {
    if (!photoPicker_)
        photoPicker_ = std::make_unique<unsplash::PickerServices>(unsplash::PickerPlatform{
            platform_.console, platform_.mainQueue, platform_.background, platform_.http, platform_.json,
            platform_.images, platform_.responseCaches, platform_.photoTexts});
    return *photoPicker_;
}

FirebaseManager& SharedServices::firebaseManager() {
    if (!firebaseManager_) {
        remoteConfig_ = std::make_unique<RemoteConfig>(
            platform_.remoteProject,
            RemoteClient{.languageCode = platform_.bundle.preferredLocalization,
                         .appVersion = platform_.bundle.shortVersion.value_or(""),
                         .packageName = platform_.bundle.identifier},
            platform_.http, platform_.json, platform_.uuids, platform_.mainQueue);
        firebaseManager_ = std::make_shared<FirebaseManager>(*remoteConfig_, platform_.settings,
                                                             platform_.mainQueue, platform_.console);
    }
    return *firebaseManager_;
}

NetworkActivityIndicatorManager& SharedServices::networkActivityIndicatorManager() {
    if (!networkActivityIndicatorManager_)
        networkActivityIndicatorManager_ = std::make_unique<NetworkActivityIndicatorManager>(platform_.texts);
    return *networkActivityIndicatorManager_;
}

MailManager& SharedServices::mailManager() {
    if (!mailManager_)
        mailManager_ =
            std::make_unique<MailManager>(window_, platform_.mail, platform_.texts, platform_.device,
                                          platform_.bundle, std::string(addresses::support));
    return *mailManager_;
}

AlertManager& SharedServices::alertManager() {
    if (!alertManager_)
        alertManager_ = std::make_unique<AlertManager>(window_, networkActivityIndicatorManager().local,
                                                       mailManager(), platform_.reviews, platform_.mainQueue);
    return *alertManager_;
}

} // namespace tessivo
