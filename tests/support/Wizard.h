#pragma once

#include "AddEventVC/EventTitleViewController.h"
#include "Extension/TabBar/CustomTabBarController.h"
#include "support/Program.h"

namespace tessivo {

/// Opens the wizard from the tabs.
inline EventTitleViewController& openWizard(Program& program) {
    program.top<CustomTabBarController>().addButton.tap();
    program.settle();
    return program.top<EventTitleViewController>();
}

/// Presses Next and gives the step that has come.
template <class Step>
Step& next(Program& program) {
    program.top<WizardScreen>().nextButton.tap();
    program.settle();
    return program.top<Step>();
}

} // namespace tessivo
