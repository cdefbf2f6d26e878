#include "Support/StartUp/LaunchAction.h"
#include "app/Composition.h"
#include "freedesktop/DataFolder.h"
#include "freedesktop/ReminderService.h"
#include "icu/DeviceLocale.h"
#include "qtdesktop/DesktopActivation.h"
#include "standard/StandardConsole.h"
#include "standard/SystemClock.h"

#include <QFont>
#include <QGuiApplication>
#include <QLocale>
#include <QStandardPaths>

int main(int argc, char** argv) {
    using namespace tessivo;

    QGuiApplication application(argc, argv);
    QGuiApplication::setApplicationDisplayName(QStringLiteral("Tessivo"));
    QGuiApplication::setDesktopFileName(QStringLiteral("org.tessivo.Tessivo"));
    QFont font;
    font.setFamilies({QStringLiteral("Noto Sans"), QStringLiteral("Noto Color Emoji")});
    QGuiApplication::setFont(font);

    StandardConsole console;
    SystemClock clock;
    const std::string language = languageFor(deviceLocale(LocalePurpose::Texts), Machine::languages());
    QGuiApplication::setLayoutDirection(QLocale(QString::fromStdString(language)).textDirection());

    Composition* running = nullptr;
    DesktopActivation activation([&](const DesktopActivation::Request& request) {
        if (!running)
            return;
        running->shell().raise(request.activationToken);
        performLaunchAction(request.action.toStdString(), request.parameter.toStdString(),
                            running->services(), running->stack());
    });
    if (!activation.claim())
        return 0;

    const auto caches = QStandardPaths::writableLocation(QStandardPaths::GenericCacheLocation).toStdString();
    Composition composition(
        {freedesktop::dataFolder(), caches + "/tessivo", language, freedesktop::tellReminderHelper}, clock,
        console);
    running = &composition;
    composition.start();
    return QGuiApplication::exec();
}
