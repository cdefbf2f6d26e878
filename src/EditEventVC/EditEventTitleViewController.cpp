#include "EditEventVC/EditEventTitleViewController.h"

#include "Event/CoreDataStack.h"
#include "Event/EventCoreData.h"
#include "Event/FetchEventDataType.h"
#include "Event/ReminderScheduler.h"
#include "Ports/Clock.h"
#include "Support/ScreenFactory.h"

namespace tessivo {

EditEventTitleViewController::EditEventTitleViewController(SharedServices& services)
    : TitleScreen(services),
      eventView(controls, "timeLabel", services),
      currentDate(services.platform().clock.now()) {}

void EditEventTitleViewController::viewDidLoad() {
    buildFrame(localized("Edit Title"), "steps1", localized("Save"));
    eventView.show(*eventData, currentDate);
    buildField(*eventData->title(), eventView);
}

void EditEventTitleViewController::nextButtonTapped() {
    eventData->setTitle(textField.text());
    if (!eventData->id())
        return;
    services().coreDataStack().updateTitle(*eventData->id(), textField.text());
    services().fetchEventDataType().refreshEvents();
    services().reminderScheduler().editTitle(*eventData);
    show(services().screens().makeTabShell());
}

} // namespace tessivo
