#include "Interface/AlertController.h"

#include <algorithm>

namespace tessivo::ui {

AlertController::AlertController(WindowContext& window, AlertStyle style, std::string title,
                                 std::string message)
    : ViewController(window), style_(style), title_(std::move(title)), message_(std::move(message)) {
    modalPresentationStyle =
        style == AlertStyle::Alert ? PresentationStyle::Alert : PresentationStyle::ActionSheet;
}

void AlertController::choose(std::size_t index) {
    if (index >= actions_.size() || !takesActs())
        return;
    const auto handler = actions_[index].handler;
    dismiss();
    if (handler)
        handler();
}

void AlertController::cancel() {
    const auto found = std::ranges::find(actions_, AlertActionStyle::Cancel, &AlertAction::style);
    if (found != actions_.end())
        choose(static_cast<std::size_t>(found - actions_.begin()));
}

void AlertController::decline() {
    const auto declines = [](const AlertAction& action) {
        return action.style == AlertActionStyle::Cancel || action.declines;
    };
    const auto found = std::ranges::find_if(actions_, declines);
    if (found != actions_.end())
        choose(static_cast<std::size_t>(found - actions_.begin()));
}

} // namespace tessivo::ui
