#pragma once

#include "Interface/Animation.h"
#include "Interface/PresentationStack.h"
#include "Support/SharedServices.h"
#include "Support/StartUp/AppDelegate.h"
#include "Support/StartUp/Screens.h"

namespace tessivo {

/// The program on a machine, whichever that is: real, made of fakes on virtual time, or a mixture. Holds what
/// the screens share and the stack on which they stand. One per program, on the main thread.
class RunningProgram {
public:
    /// What the platform refers to, the frame clock and the screen outlive the program.
    RunningProgram(const Platform& platform, FrameClock& frameClock, ui::MainScreen& screen);
    RunningProgram(const RunningProgram&) = delete;
    RunningProgram& operator=(const RunningProgram&) = delete;

    /// Shows the first screen; called once.
    void launch();

    [[nodiscard]] SharedServices& services() { return services_; }
    [[nodiscard]] Screens& screens() { return screens_; }
    [[nodiscard]] ui::PresentationStack& stack() { return stack_; }

private:
    ui::Animations animations_;
    ui::WindowContext window_;
    Screens screens_;
    SharedServices services_;
    ui::PresentationStack stack_{window_};
    AppDelegate appDelegate_{services_};
    Subscription preferences_;
};

} // namespace tessivo
