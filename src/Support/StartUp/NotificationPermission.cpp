#include "Support/StartUp/NotificationPermission.h"

#include "Interface/AlertController.h"
#include "SettingVC/NotificationSettingsController.h"

#include <algorithm>

namespace tessivo {

NotificationPermission::NotificationPermission(ui::PresentationStack& stack, NotificationCenter& center,
                                               MainQueue& mainQueue, std::function<void(bool)> changeAnswer)
    : stack_(stack),
      center_(center),
      mainQueue_(mainQueue),
      changeAnswer_(std::move(changeAnswer)),
      stackChanges_(stack.onChange([this] { showWaiting(); })) {}

void NotificationPermission::ask(std::function<void(bool)> answered) {
    const auto question = std::make_shared<ui::AlertController>(
        stack_.window(), ui::AlertStyle::Alert, "“Tessivo” Would Like to Send You Notifications",
        "Notifications remind you of your events.");
    question->addAction({"Don’t Allow", ui::AlertActionStyle::Cancel, [answered] { answered(false); }});
    question->addAction({"Allow", ui::AlertActionStyle::Default, [answered] { answered(true); }});
    show(question);
}

void NotificationPermission::openSettings() {
    show(std::make_shared<NotificationSettingsController>(stack_.window(), center_, mainQueue_,
                                                          changeAnswer_));
}

void NotificationPermission::show(std::shared_ptr<ui::ViewController> screen) {
    waiting_.push_back(std::move(screen));
    showWaiting();
}

void NotificationPermission::showWaiting() {
    if (waiting_.empty() || stack_.isInTransition() || !stack_.top())
        return;
    if (const auto standing = standing_.lock();
        standing && std::ranges::count(stack_.screens(), standing) > 0)
        return;
    const auto next = waiting_.front();
    waiting_.pop_front();
    standing_ = next;
    stack_.top()->present(next);
}

} // namespace tessivo
