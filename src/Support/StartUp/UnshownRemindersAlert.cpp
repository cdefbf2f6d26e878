#include "Support/StartUp/UnshownRemindersAlert.h"

#include "Interface/AlertController.h"
#include "Ports/LocalizedTexts.h"
#include "Support/StartUp/PendingScreens.h"

#include <memory>
#include <utility>

namespace tessivo {

void UnshownRemindersAlert::show() {
    if (std::exchange(shown_, true))
        return;
    const auto alert = std::make_shared<ui::AlertController>(window_, ui::AlertStyle::Alert,
                                                             texts_.localizedString("notShown.title"),
                                                             texts_.localizedString("notShown.message"));
    alert->addAction({texts_.localizedString("close"), ui::AlertActionStyle::Cancel, {}});
    pending_.show(alert);
}

} // namespace tessivo
