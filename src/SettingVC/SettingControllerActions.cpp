// What the rows do that speak to the world outside: rate, share, write to the support, open a page.

#include "Interface/AlertController.h"
#include "Ports/Device.h"
#include "Ports/LinkOpener.h"
#include "Ports/MailComposing.h"
#include "Ports/MainQueue.h"
#include "Ports/SavedSettings.h"
#include "Ports/Url.h"
#include "SettingVC/SettingController.h"
#include "Support/Addresses.h"
#include "Support/Feedback/DeviceName.h"
#include "Support/Feedback/RateUs.h"
#include "Support/LocalizationVariables.h"
#include "Support/Sharing/ActivityViewController.h"

namespace tessivo {

void SettingController::rate() {
    const auto choice = wholeNumber(rateUsText(platform().settings, platform().network));
    if (!choice)
        return;
    if (*choice != 1)
        return writeReview();
    const auto question =
        std::make_shared<ui::AlertController>(window(), ui::AlertStyle::Alert, texts().alertRate, "");
    const auto act = [weak = weak_from_this()](void (SettingController::*answer)()) {
        return [weak, answer] {
            if (const auto self = std::static_pointer_cast<SettingController>(weak.lock()))
                (self.get()->*answer)();
        };
    };
    question->addAction(
        {texts().alertNo, ui::AlertActionStyle::Destructive, act(&SettingController::writeToSupport), true});
    question->addAction({texts().alertYes, ui::AlertActionStyle::Default, [this, weak = weak_from_this()] {
                             if (weak.lock())
                                 open(addresses::storePage);
                         }});
    present(question);
}

void SettingController::writeReview() {
    const auto page = Url::parse(addresses::storePage);
    if (!page)
        return;
    platform().mainQueue.post(
        [&links = platform().links,
         address = page->appendingQueryItem("action", "write-review").absoluteString()] {
            if (links.canOpen(address))
                links.open(address);
        });
}

void SettingController::shareTheApp() {
    present(std::make_shared<ActivityViewController>(window(), platform().texts, platform().textSharing,
                                                     texts().share + std::string(addresses::storePage)));
}

void SettingController::writeToSupport() {
    if (!platform().mail.canSendMail())
        return;
    const Bundle& bundle = platform().bundle;
    std::string body = "<p></p><p>----------------</p><p> Device: " + deviceName(platform().device) +
                       "</p><p>iOS: " + platform().device.systemVersion() + "</p>";
    if (bundle.shortVersion)
        body += "<p>App version: " + *bundle.shortVersion + " (" + bundle.version + ")</p>";
    platform().mail.compose({.recipient = std::string(addresses::support),
                             .subject = "Tessivo — User Question ",
                             .htmlBody = std::move(body)},
                            [](const Outcome&) {});
}

void SettingController::open(std::string_view address) {
    if (!address.empty())
        platform().links.open(std::string(address));
}

} // namespace tessivo
