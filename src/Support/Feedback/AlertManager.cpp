#include "Support/Feedback/AlertManager.h"

#include "Interface/AlertController.h"
#include "Ports/MainQueue.h"
#include "Ports/ReviewRequests.h"
#include "Support/Feedback/MailManager.h"
#include "Support/LocalizationVariables.h"

namespace tessivo {

AlertManager::AlertManager(ui::WindowContext& window, const LocalizationVariables& texts, MailManager& mail,
                           ReviewRequests& reviews, MainQueue& mainQueue)
    : window_(window), texts_(texts), mail_(mail), reviews_(reviews), mainQueue_(mainQueue) {}

void AlertManager::showRateAlert(ui::ViewController& presenter) {
    controller = presenter.weak_from_this();
    const auto alert =
        std::make_shared<ui::AlertController>(window_, ui::AlertStyle::Alert, texts_.alertRate, "");
    alert->addAction({texts_.alertNo, ui::AlertActionStyle::Destructive, [this] {
                          if (const auto standing = controller.lock())
                              mail_.send(*standing);
                      }});
    alert->addAction({texts_.alertYes, ui::AlertActionStyle::Default, [this] { requestReview(); }});
    presenter.present(alert);
}

void AlertManager::requestReview() {
    if (reviews_.hasForegroundScene())
        mainQueue_.post([&reviews = reviews_] { reviews.requestReview(); });
}

} // namespace tessivo
