// What the rows do that speak to the world outside: rate, share, write to the support, open a page.

#include "Interface/AlertController.h"
#include "Ports/LinkOpener.h"
#include "Ports/MainQueue.h"
#include "Ports/SavedSettings.h"
#include "Ports/Url.h"
#include "SettingVC/SettingController.h"
#include "Support/Addresses.h"
#include "Support/LocalizationVariables.h"
#include "Support/SettingKeys.h"

#include <charconv>

namespace tessivo {
namespace {

std::optional<long> wholeNumber(std::string_view text) {
    if (text.starts_with('+'))
        text.remove_prefix(1);
    long number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    return error == std::errc() && end == text.data() + text.size() ? std::optional(number) : std::nullopt;
}

} // namespace

void SettingController::rate() {
    const auto choice = wholeNumber(platform().settings.text(settingKeys::rateUs).value_or("0"));
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
        {texts().alertNo, ui::AlertActionStyle::Destructive, act(&SettingController::writeToSupport)});
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
    if (const auto mail = Url::parse("mailto:"))
        open(mail->appendingQueryItem("body", texts().share + std::string(addresses::storePage))
                 .absoluteString());
}

void SettingController::writeToSupport() {
    if (const auto mail = Url::parse("mailto:" + std::string(addresses::support));
        mail && !addresses::support.empty())
        open(mail->appendingQueryItem("subject", "Tessivo — User Question ").absoluteString());
}

void SettingController::open(std::string_view address) {
    if (!address.empty())
        platform().links.open(std::string(address));
}

} // namespace tessivo
