#include "Support/Feedback/MailManager.h"

#include "Interface/AlertController.h"
#include "Ports/Device.h"
#include "Ports/LocalizedTexts.h"
#include "Ports/MailComposing.h"
#include "Support/Feedback/DeviceName.h"

#include <utility>

namespace tessivo {

MailManager::MailManager(ui::WindowContext& window, MailComposing& mail, const LocalizedTexts& texts,
                         const Device& device, const Bundle& bundle, std::string recipient)
    : systemVersion(device.systemVersion()),
      deviceName(tessivo::deviceName(device)),
      buildNumber(bundle.version),
      appVersion(bundle.shortVersion.value_or("")),
      window_(window),
      mail_(mail),
      texts_(texts),
      recipient_(std::move(recipient)) {}

void MailManager::send(ui::ViewController& presenter, const std::optional<std::string>& attachment) {
    controller = presenter.weak_from_this();
    if (!mail_.canSendMail())
        return showError("Your device has not been configured to send e-mails");
    MailMessage message;
    message.recipient = recipient_;
    message.subject = "Tessivo — User Question";
    message.htmlBody = "<p>Device: " + deviceName + " <p>iOS: " + systemVersion +
                       " <p>App Version: " + appVersion + " (" + buildNumber + ")</p> </p>";
    if (attachment)
        message.attachment = MailAttachment{*attachment, "application/octet-stream",
                                            attachment->substr(attachment->rfind('/') + 1)};
    mail_.compose(message, [this, presenter = controller](const Outcome& outcome) {
        if (!outcome)
            return;
        controller = presenter;
        showError(outcome->description);
    });
}

void MailManager::showError(const std::string& message) {
    const auto presenter = controller.lock();
    if (!presenter)
        return;
    const auto alert = std::make_shared<ui::AlertController>(window_, ui::AlertStyle::Alert,
                                                             texts_.localizedString("Mail Error"),
                                                             texts_.localizedString(message));
    alert->addAction({texts_.localizedString("alertOk"), ui::AlertActionStyle::Default, {}});
    presenter->present(alert);
}

} // namespace tessivo
