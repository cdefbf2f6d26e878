#include "Support/StartUp/LaunchAction.h"
#include "app/Composition.h"
#include "app/stop/StopWindow.h"
#include "freedesktop/DataFolder.h"
#include "freedesktop/ReminderService.h"
#include "icu/DeviceLocale.h"
#include "qtdesktop/DesktopActivation.h"
#include "qtdesktop/DesktopPortal.h"
#include "standard/StandardConsole.h"
#include "standard/SystemClock.h"

#include <QDBusConnection>
#include <QFont>
#include <QGuiApplication>
#include <QIcon>
#include <QLocale>
#include <QStandardPaths>

#include <algorithm>
#include <cstdio>
#include <string_view>

namespace {

constexpr const char* help = "Usage: tessivo [--new-event] [--version] [--help]\n"
                             "Counts the time to, or since, the dates that matter to you.\n";

/// Answers the options that every program has; all others are ignored.
bool answerOptions(int argc, char** argv) {
    const auto has = [&](std::string_view option) {
        return std::any_of(argv + 1, argv + argc, [&](const char* argument) { return argument == option; });
    };
    if (has("--help"))
        std::fputs(help, stdout);
    else if (has("--version"))
        std::puts("Tessivo " TESSIVO_VERSION);
    else
        return false;
    return true;
}

} // namespace

int main(int argc, char** argv) {
    using namespace tessivo;

    if (isStopWindow(argc, argv))
        return runStopWindow(argc, argv);
    if (answerOptions(argc, argv))
        return 0;
    StandardConsole console(becomeStopWindow);
    if (!hasDisplay())
        console.stopProgram("There is no display: neither WAYLAND_DISPLAY nor DISPLAY is set.");

    QGuiApplication application(argc, argv);
    QGuiApplication::setApplicationDisplayName(QStringLiteral("Tessivo"));
    QGuiApplication::setDesktopFileName(QStringLiteral("org.tessivo.Tessivo"));
    QGuiApplication::setWindowIcon(QIcon::fromTheme(
        QStringLiteral("org.tessivo.Tessivo"), QIcon(QStringLiteral(":/tessivo/org.tessivo.Tessivo.svg"))));
    QFont font;
    font.setFamilies({QStringLiteral("Noto Sans"), QStringLiteral("Noto Color Emoji")});
    QGuiApplication::setFont(font);

    SystemClock clock;
    const std::string language = languageFor(deviceLocale(LocalePurpose::Texts), Machine::languages());
    QGuiApplication::setLayoutDirection(QLocale(QString::fromStdString(language)).textDirection());

    Composition* running = nullptr;
    const auto bus = QDBusConnection::sessionBus();
    DesktopActivation activation(bus, [&](const DesktopActivation::Request& request) {
        if (!running)
            return;
        running->shell().raise(request.activationToken);
        performLaunchAction(request.action.toStdString(), request.parameter.toStdString(),
                            running->services(), running->stack());
    });
    const bool addsEvent = QGuiApplication::arguments().contains(QStringLiteral("--new-event"));
    if (!activation.claim(addsEvent ? QStringLiteral("new-event") : QString()))
        return 0;

    const auto caches = QStandardPaths::writableLocation(QStandardPaths::GenericCacheLocation).toStdString();
    Composition composition({freedesktop::dataFolder(), caches + "/tessivo", language,
                             [&] {
                                 freedesktop::tellReminderHelper();
                                 if (running)
                                     running->checkThatRemindersShow();
                             }},
                            clock, console);
    running = &composition;
    composition.start();

    desktop::DesktopPortal portal(bus);
    // A sandbox has no autostart entry.
    if (desktop::DesktopPortal::isSandboxed())
        portal.startAtLogin(QString::fromStdString(composition.services().platform().texts.localizedString(
                                "Show reminders while the window is closed")),
                            {QStringLiteral("tessivo-reminders")},
                            [&](desktop::DesktopPortal::Answer answer) {
                                if (answer == desktop::DesktopPortal::Answer::Absent)
                                    console.print("The reminder helper cannot be started at login.");
                            });
    return QGuiApplication::exec();
}
