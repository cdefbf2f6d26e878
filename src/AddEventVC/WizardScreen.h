#pragma once

#include "Extension/SlideTransitions.h"
#include "Interface/Button.h"
#include "Interface/ImageView.h"
#include "Interface/Label.h"
#include "Support/Screen.h"

namespace tessivo {

/// What the steps of the wizard and the edit screens have in common: a heading with a picture of the
/// progress, Back, and a button that goes on or saves.
class WizardScreen : public Screen, public SlideTransitions {
public:
    explicit WizardScreen(SharedServices& services);

    ui::Label titleLabel{controls, "titleLabel"};
    ui::ImageView topImage{controls, "topImage"};
    ui::Button nextButton{controls, "nextButton"};
    ui::Button prevButton{controls, "prevButton"};

    void prevButtonTapped() { dismiss(); }

protected:
    /// `stepImage` is the name of the picture of the progress.
    void buildFrame(std::string heading, std::string stepImage, std::string nextTitle);
    /// Slides the next step in over this one.
    void show(std::shared_ptr<ui::ViewController> next);
};

} // namespace tessivo
