#pragma once

#include "Interface/Button.h"
#include "Interface/Label.h"
#include "Interface/Switch.h"
#include "Interface/ViewController.h"
#include "Ports/MainQueue.h"
#include "Ports/NotificationCenter.h"

namespace tessivo {

class LocalizedTexts;

/// The page on which the user allows or forbids notifications, as a sheet. The switch stands still until the
/// present answer is known.
class NotificationSettingsController final : public ui::ViewController {
public:
    /// `changeAnswer` stores what the user decides. The ports outlive the page.
    NotificationSettingsController(ui::WindowContext& window, NotificationCenter& center,
                                   MainQueue& mainQueue, const LocalizedTexts& texts,
                                   std::function<void(bool allowed)> changeAnswer);

    ui::Label titleLabel{controls, "titleLabel"};
    ui::Label explanationLabel{controls, "explanationLabel"};
    ui::Label allowLabel{controls, "allowLabel"};
    ui::Switch allowSwitch{controls, "allowSwitch"};

    [[nodiscard]] std::string screenName() const override { return "NotificationSettingsController"; }

protected:
    void viewDidLoad() override;

private:
    void showAnswer(AuthorizationStatus status);

    NotificationCenter& center_;
    MainQueue& mainQueue_;
    const LocalizedTexts& texts_;
    std::function<void(bool)> changeAnswer_;
};

} // namespace tessivo
