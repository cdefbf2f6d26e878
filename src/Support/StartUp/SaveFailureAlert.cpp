#include "Support/StartUp/SaveFailureAlert.h"

#include "Event/CoreDataStack.h"
#include "Event/EventCoreData.h"
#include "Interface/AlertController.h"
#include "Ports/LocalizedTexts.h"
#include "Support/FilledText.h"
#include "Support/StartUp/PendingScreens.h"

namespace tessivo {

SaveFailureAlert::SaveFailureAlert(CoreDataStack& events, PendingScreens& pending, ui::WindowContext& window,
                                   const LocalizedTexts& texts)
    : events_(events), pending_(pending), window_(window), texts_(texts) {
    events_.saveListener = [this](const std::shared_ptr<EventCoreData>& event, const Outcome& outcome) {
        if (!outcome)
            reported_.clear();
        else if (reported_.insert(event->title().value_or("")).second)
            tell(event, *outcome);
    };
}

SaveFailureAlert::~SaveFailureAlert() {
    events_.saveListener = nullptr;
}

void SaveFailureAlert::tell(const std::shared_ptr<EventCoreData>& event, const Error& error) {
    const auto alert = std::make_shared<ui::AlertController>(
        window_, ui::AlertStyle::Alert,
        filledText(texts_.localizedString("notSaved.title"), event->title().value_or("")),
        filledText(texts_.localizedString("notSaved.message"), texts_.localizedString(error.description)));
    alert->addAction({texts_.localizedString("close"), ui::AlertActionStyle::Cancel, {}});
    alert->addAction(
        {texts_.localizedString("notSaved.tryAgain"), ui::AlertActionStyle::Default, [this, event] {
             reported_.clear();
             events_.save(event);
         }});
    pending_.show(alert);
}

} // namespace tessivo
