#include "Support/StartUp/NotificationPermission.h"

#include "Interface/AlertController.h"
#include "Ports/LocalizedTexts.h"
#include "SettingVC/NotificationSettingsController.h"
#include "Support/StartUp/PendingScreens.h"

#include <memory>

namespace tessivo {

NotificationPermission::NotificationPermission(PendingScreens& pending, ui::WindowContext& window,
                                               NotificationCenter& center, MainQueue& mainQueue,
                                               const LocalizedTexts& texts,
                                               std::function<void(bool)> changeAnswer)
    : pending_(pending),
      window_(window),
      center_(center),
      mainQueue_(mainQueue),
      texts_(texts),
      changeAnswer_(std::move(changeAnswer)) {}

void NotificationPermission::ask(std::function<void(bool)> answered) {
    const auto question = std::make_shared<ui::AlertController>(
        window_, ui::AlertStyle::Alert,
        texts_.localizedString("“Tessivo” Would Like to Send You Notifications"),
        texts_.localizedString("Notifications remind you of your events."));
    question->addAction({texts_.localizedString("Don’t Allow"), ui::AlertActionStyle::Cancel,
                         [answered] { answered(false); }});
    question->addAction(
        {texts_.localizedString("Allow"), ui::AlertActionStyle::Default, [answered] { answered(true); }});
    pending_.show(question);
}

void NotificationPermission::openSettings() {
    pending_.show(std::make_shared<NotificationSettingsController>(window_, center_, mainQueue_, texts_,
                                                                   changeAnswer_));
}

} // namespace tessivo
