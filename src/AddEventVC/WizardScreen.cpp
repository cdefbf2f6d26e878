#include "AddEventVC/WizardScreen.h"

namespace tessivo {

WizardScreen::WizardScreen(SharedServices& services)
    : Screen(services), SlideTransitions(services.window().animations) {}

void WizardScreen::buildFrame(std::string heading, std::string stepImage, std::string nextTitle) {
    view().setBackgroundColor(ui::ColorRef::white());
    titleLabel.setFont({32, ui::FontWeight::Bold});
    titleLabel.setText(std::move(heading));
    view().setAccessibilityName(titleLabel.text());
    topImage.setImage(ui::Image::named(std::move(stepImage)));
    nextButton.setFont({screen().isLarge() ? 19.0 : 17.0, ui::FontWeight::Medium});
    nextButton.setTitleColor(ui::ColorRef::named("button"));
    nextButton.setTitle(std::move(nextTitle));
    prevButton.setImageName("chevron.backward");
    prevButton.setTint(ui::ColorRef::named("button"));
    prevButton.setAccessibilityName(localized("Back"));
    prevButton.addTarget(ui::PressEvent::UpInside, [this] { prevButtonTapped(); });
    for (ui::View* part : std::initializer_list<ui::View*>{&titleLabel, &topImage, &nextButton, &prevButton})
        view().addSubview(*part);
}

void WizardScreen::show(std::shared_ptr<ui::ViewController> next) {
    next->modalPresentationStyle = ui::PresentationStyle::Custom;
    next->transitioningDelegate = weakSelf<ui::TransitioningDelegate>(this);
    present(std::move(next));
}

} // namespace tessivo
