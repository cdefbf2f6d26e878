#pragma once

#include "Support/StartUp/NotificationPermission.h"
#include "Support/StartUp/PendingScreens.h"
#include "Support/StartUp/RunningProgram.h"
#include "Support/StartUp/SaveFailureAlert.h"
#include "Support/StartUp/UnshownRemindersAlert.h"
#include "app/Machine.h"
#include "qt/QtTextTranslator.h"
#include "shell/Shell.h"

namespace tessivo {

/// The program on this machine, with its window. One per process, on the main thread of a running Qt
/// application.
class Composition {
public:
    /// Clock and console outlive the composition.
    Composition(const Machine::Settings& settings, Clock& clock, Console& console);
    Composition(const Composition&) = delete;
    Composition& operator=(const Composition&) = delete;

    /// Lets the notification center finish first: its completions reach what goes next.
    ~Composition() { machine_.notificationCenter().finish(); }

    /// Launches the program and opens its window.
    void start();

    /// Tells the user if there are reminders and nothing on this desktop that would show them. Any thread.
    void checkThatRemindersShow();

    [[nodiscard]] Machine& machine() { return machine_; }
    [[nodiscard]] shell::Shell& shell() { return shell_; }
    [[nodiscard]] SharedServices& services() { return program_.services(); }
    [[nodiscard]] ui::PresentationStack& stack() { return program_.stack(); }

private:
    Machine machine_;
    ui::MainScreen screen_;
    RunningProgram program_;
    PendingScreens pendingScreens_{stack()};
    NotificationPermission permission_;
    SaveFailureAlert saveFailureAlert_;
    UnshownRemindersAlert unshownReminders_;
    QtTextTranslator translator_;
    shell::Shell shell_;
};

} // namespace tessivo
