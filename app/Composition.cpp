#include "app/Composition.h"

#include "Event/CoreDataStack.h"
#include "Event/ReminderScheduler.h"
#include "UnsplashPicker/PickerServices.h"

#include <utility>

namespace tessivo {

Composition::Composition(const Machine::Settings& settings, Clock& clock, Console& console)
    : machine_(settings, clock, console,
               [this](std::function<void(bool)> answer) { permission_.ask(std::move(answer)); }),
      program_(machine_.platform(), machine_.frameClock(), screen_),
      permission_(pendingScreens_, stack().window(), machine_.notificationCenter(),
                  services().platform().mainQueue, services().platform().texts,
                  [this](bool allowed) { machine_.notificationCenter().setAuthorization(allowed); }),
      saveFailureAlert_(services().coreDataStack(), pendingScreens_, stack().window(),
                        machine_.machineTexts()),
      unshownReminders_(pendingScreens_, stack().window(), machine_.machineTexts()),
      translator_(services().platform().texts),
      shell_(stack(), services().platform().colors, console, machine_.snapshots()) {
    if (!settings.photoService.empty())
        services().photoPicker().setConfiguration(
            unsplash::UnsplashPickerConfiguration(settings.photoService));
    machine_.reviews().showOver(stack());
    machine_.preferences().onChange(
        [this](const UserPreferences& preferences) { screen_.setPreferences(preferences); });
    services().openNotificationSettings = [this] { permission_.openSettings(); };
}

void Composition::start() {
    program_.launch();
    machine_.notificationCenter().begin([this] {
        services().reminderScheduler().restoreReminders(services().coreDataStack().fetchEvents());
    });
    shell_.open();
    machine_.frameClock().setWindow(shell_.window());
}

void Composition::checkThatRemindersShow() {
    machine_.notificationCenter().getPendingNotificationRequests([this](const auto& requests) {
        if (requests->empty())
            return;
        services().platform().mainQueue.post([this] {
            machine_.notificationDaemon().isThere([this](bool there) {
                if (!there)
                    unshownReminders_.show();
            });
        });
    });
}

} // namespace tessivo
