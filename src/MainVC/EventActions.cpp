#include "MainVC/EventActions.h"

#include "Interface/AlertController.h"
#include "Ports/LocalizedTexts.h"
#include "Support/LocalizationVariables.h"
#include "Support/SharedServices.h"

namespace tessivo {
namespace {

// The line separator breaks the title without ending its paragraph.
constexpr auto deletionTitle = "Are You Sure You Want\u2028 to Delete This Event?";

} // namespace

ui::MenuElement editMenu(const LocalizedTexts& texts, const std::function<void(EditScreen)>& edit) {
    ui::MenuElement menu{texts.localizedString("Edit"), "pencil", {}, {}};
    for (const auto& choice : editChoices)
        menu.children.push_back({texts.localizedString(choice.title),
                                 choice.symbol,
                                 [edit, kind = choice.screen] { edit(kind); },
                                 {}});
    return menu;
}

ui::MenuElement shareElement(const LocalizedTexts& texts, std::function<void()> share) {
    return {texts.localizedString("Share"), "square.and.arrow.up", std::move(share), {}};
}

ui::MenuElement deleteElement(const LocalizedTexts& texts, std::function<void()> remove) {
    return {texts.localizedString("Delete"), "trash", std::move(remove), {}};
}

std::shared_ptr<ui::AlertController> deletionQuestion(SharedServices& services,
                                                      std::function<void()> remove) {
    const auto& texts = services.localizationVariables();
    auto question =
        std::make_shared<ui::AlertController>(services.window(), ui::AlertStyle::ActionSheet,
                                              services.platform().texts.localizedString(deletionTitle), "");
    // The look of danger stands on the answer that keeps the event.
    question->addAction({texts.alertNo, ui::AlertActionStyle::Destructive, {}, true});
    question->addAction({texts.alertYes, ui::AlertActionStyle::Default, std::move(remove)});
    return question;
}

} // namespace tessivo
