#include "Support/SharedServices.h"

#include "Event/CoreDataStack.h"
#include "Event/FetchEventDataType.h"
#include "Event/ReminderScheduler.h"
#include "Support/LocalizationVariables.h"

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

} // namespace tessivo
