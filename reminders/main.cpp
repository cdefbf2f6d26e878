#include "Reminders/ReminderEngine.h"
#include "freedesktop/BusAppActivation.h"
#include "freedesktop/DataFolder.h"
#include "freedesktop/DesktopNotificationDisplay.h"
#include "freedesktop/EventLoop.h"
#include "freedesktop/FileWatch.h"
#include "freedesktop/ProgramFile.h"
#include "freedesktop/ReminderService.h"
#include "freedesktop/SessionBus.h"
#include "freedesktop/TimerfdAlarm.h"
#include "sqlite/SqliteNotificationQueue.h"
#include "standard/GregorianCalendar.h"
#include "standard/StandardConsole.h"
#include "standard/SystemClock.h"

#include <unistd.h>

#include <csignal>

namespace {

using namespace tessivo;

enum class Ending { Failed, Done, Replaced };

/// Shows reminders until it is asked to quit. Everything it made is destroyed when it returns.
Ending run(const std::filesystem::path& program, Console& console) {
    auto loop = freedesktop::EventLoop::make();
    if (!loop) {
        console.print(loop.error().description);
        return Ending::Failed;
    }
    auto bus = freedesktop::SessionBus::open(loop.value());
    if (!bus) {
        console.print(bus.error().description);
        return Ending::Failed;
    }

    const SystemClock clock;
    const GregorianCalendar calendar;
    sqlite::SqliteNotificationQueue queue(freedesktop::reminderQueueFile(), console);
    freedesktop::DesktopNotificationDisplay display(bus.value());
    freedesktop::TimerfdAlarm alarm(loop.value(), console);
    freedesktop::BusAppActivation app(bus.value(), console, freedesktop::siblingProgram("tessivo", "app"));
    ReminderEngine engine({queue, display, alarm, app, clock, calendar, console});

    bool hasBegun = false;
    const auto processDue = [&] {
        if (hasBegun)
            engine.processDue();
    };
    Ending ending = Ending::Done;
    const auto finishWith = [&](Ending how) {
        ending = how;
        engine.finish([&] { loop.value().quit(0); });
    };

    const auto zoneWatch = freedesktop::watchFile(loop.value(), "/etc/localtime", processDue);
    const auto programWatch =
        freedesktop::watchFile(loop.value(), program, [&] { finishWith(Ending::Replaced); });
    if (const auto error = loop.value().onSignals({SIGTERM, SIGINT}, [&] { finishWith(Ending::Done); }))
        console.print(error->description);
    if (const auto error = loop.value().onSignals({SIGHUP}, [&] { finishWith(Ending::Replaced); }))
        console.print(error->description);

    freedesktop::ReminderService service(bus.value(), TESSIVO_VERSION,
                                         {[&] {
                                              hasBegun = true;
                                              processDue();
                                          },
                                          processDue, [&] { finishWith(Ending::Done); }});
    const auto claimed = service.claim();
    if (!claimed) {
        console.print(claimed.error().description);
        return Ending::Failed;
    }
    if (!claimed.value())
        return Ending::Done; // another helper shows the reminders
    return loop.value().run() == 0 ? ending : Ending::Failed;
}

} // namespace

int main(int, char** arguments) {
    StandardConsole console;
    std::error_code ignored; // without its own path it cannot notice that it was replaced
    const auto program = std::filesystem::read_symlink("/proc/self/exe", ignored);
    switch (run(program, console)) {
    case Ending::Failed:
        return 1;
    case Ending::Done:
        return 0;
    case Ending::Replaced:
        ::execv(program.c_str(), arguments);
        console.print("The new reminder helper cannot be started");
        return 1;
    }
}
