#include "SettingVC/NotificationSettingsController.h"

#include "Ports/LocalizedTexts.h"

namespace tessivo {
namespace {

constexpr double sheetHeight = 260;

} // namespace

NotificationSettingsController::NotificationSettingsController(ui::WindowContext& window,
                                                               NotificationCenter& center,
                                                               MainQueue& mainQueue,
                                                               const LocalizedTexts& texts,
                                                               std::function<void(bool)> changeAnswer)
    : ViewController(window),
      center_(center),
      mainQueue_(mainQueue),
      texts_(texts),
      changeAnswer_(std::move(changeAnswer)) {
    modalPresentationStyle = ui::PresentationStyle::Sheet;
    sheetPresentation.height = screen().rowHeight(sheetHeight);
}

void NotificationSettingsController::viewDidLoad() {
    view().setBackgroundColor(ui::ColorRef::white());
    titleLabel.setFont({22, ui::FontWeight::Bold});
    titleLabel.setText(texts_.localizedString("Notifications"));
    view().setAccessibilityName(titleLabel.text());
    explanationLabel.setTextColor(ui::ColorRef::named("disabled"));
    explanationLabel.setNumberOfLines(0);
    explanationLabel.setText(
        texts_.localizedString("Tessivo reminds you of your events, also while its window is closed."));
    allowLabel.setText(texts_.localizedString("Allow Notifications"));
    allowSwitch.setAccessibilityName(allowLabel.text());
    allowSwitch.setUserInteractionEnabled(false);
    allowSwitch.addValueChangedTarget([this] { changeAnswer_(allowSwitch.isOn()); });
    for (ui::View* part :
         std::initializer_list<ui::View*>{&titleLabel, &explanationLabel, &allowLabel, &allowSwitch})
        view().addSubview(*part);

    const auto weak =
        std::weak_ptr(std::static_pointer_cast<NotificationSettingsController>(shared_from_this()));
    center_.getNotificationSettings([weak, &mainQueue = mainQueue_](AuthorizationStatus status) {
        mainQueue.post([weak, status] {
            if (const auto page = weak.lock())
                page->showAnswer(status);
        });
    });
}

void NotificationSettingsController::showAnswer(AuthorizationStatus status) {
    allowSwitch.setOn(status == AuthorizationStatus::Authorized);
    allowSwitch.setUserInteractionEnabled(true);
}

} // namespace tessivo
