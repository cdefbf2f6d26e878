#include "MainVC/EventActions.h"

#include "Interface/AlertController.h"
#include "Support/LocalizationVariables.h"
#include "Support/SharedServices.h"

namespace tessivo {
namespace {

// The line separator breaks the title without ending its paragraph.
constexpr auto deletionTitle = "Are You Sure You Want\u2028 to Delete This Event?";

} // namespace

ui::MenuElement editMenu(const std::function<void(EditScreen)>& edit) {
    ui::MenuElement menu{"Edit", "pencil", {}, {}};
    for (const auto& choice : editChoices)
        menu.children.push_back(
            {choice.title, choice.symbol, [edit, kind = choice.screen] { edit(kind); }, {}});
    return menu;
}

ui::MenuElement shareElement(std::function<void()> share) {
    return {"Share", "square.and.arrow.up", std::move(share), {}};
}

ui::MenuElement deleteElement(std::function<void()> remove) {
    return {"Delete", "trash", std::move(remove), {}};
}

std::shared_ptr<ui::AlertController> deletionQuestion(SharedServices& services,
                                                      std::function<void()> remove) {
    const auto& texts = services.localizationVariables();
    auto question = std::make_shared<ui::AlertController>(services.window(), ui::AlertStyle::ActionSheet,
                                                          deletionTitle, "");
    // The look of danger stands on the answer that keeps the event.
    question->addAction({texts.alertNo, ui::AlertActionStyle::Destructive, {}});
    question->addAction({texts.alertYes, ui::AlertActionStyle::Default, std::move(remove)});
    return question;
}

} // namespace tessivo
