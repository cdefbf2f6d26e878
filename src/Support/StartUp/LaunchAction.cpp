#include "Support/StartUp/LaunchAction.h"

#include "Event/CoreDataStack.h"
#include "Event/EventCoreData.h"
#include "Extension/TabBar/CustomTabBarController.h"
#include "Interface/PresentationStack.h"
#include "Support/SharedServices.h"

namespace tessivo {

void performLaunchAction(std::string_view name, std::string_view parameter, SharedServices& services,
                         ui::PresentationStack& stack) {
    auto* lists = dynamic_cast<CustomTabBarController*>(stack.top());
    if (lists == nullptr || stack.isInTransition())
        return;
    if (name == "new-event")
        lists->addEvent();
    if (name != "show-event")
        return;
    const auto id = Uuid::fromString(parameter);
    for (const auto& event : services.coreDataStack().fetchEvents()) { // by now it may be deleted
        if (id && event->id() == id)
            lists->showEvent(*event);
    }
}

} // namespace tessivo
