#include "Support/StartUp/ReviewPrompt.h"

#include "Interface/AlertController.h"
#include "Ports/LinkOpener.h"
#include "Ports/LocalizedTexts.h"
#include "Support/Addresses.h"

namespace tessivo {
namespace {

constexpr auto softwareCentrePage = "appstream:org.tessivo.Tessivo";

} // namespace

ReviewPrompt::ReviewPrompt(LinkOpener& links, const LocalizedTexts& texts, std::function<bool()> isForeground)
    : links_(links), texts_(texts), isForeground_(std::move(isForeground)) {}

void ReviewPrompt::showOver(ui::PresentationStack& stack) {
    stack_ = &stack;
    stackChanges_ = stack.onChange([this] {
        if (waiting_)
            show();
    });
}

void ReviewPrompt::requestReview() {
    waiting_ = true;
    show();
}

void ReviewPrompt::show() {
    if (!stack_ || stack_->isInTransition() || !stack_->top())
        return;
    waiting_ = false;
    const auto sheet = std::make_shared<ui::AlertController>(
        stack_->window(), ui::AlertStyle::ActionSheet, texts_.localizedString("alertRate"),
        texts_.localizedString("A rating helps others to find Tessivo."));
    sheet->addAction({texts_.localizedString("Rate Tessivo"), ui::AlertActionStyle::Default, [this] {
                          links_.open(links_.canOpen(softwareCentrePage) ? softwareCentrePage
                                                                         : std::string(addresses::storePage));
                      }});
    sheet->addAction({texts_.localizedString("Not Now"), ui::AlertActionStyle::Cancel, {}});
    stack_->top()->present(sheet);
}

} // namespace tessivo
