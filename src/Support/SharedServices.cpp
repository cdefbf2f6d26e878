#include "Support/SharedServices.h"

#include "Event/CoreDataStack.h"
#include "Event/FetchEventDataType.h"
#include "Event/ReminderScheduler.h"
#include "Interface/PictureLoader.h"
#include "Interface/ViewController.h"
#include "Support/EventImages.h"
#include "Support/LocalizationVariables.h"
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

} // namespace tessivo
