#include "app/stop/StopWindow.h"
#include "freedesktop/DataFolder.h"
#include "icu/DeviceLocale.h"
#include "json/JsonLocalizedTexts.h"

#include <QDesktopServices>
#include <QFile>
#include <QFont>
#include <QGuiApplication>
#include <QLocale>
#include <QQuickItem>
#include <QQuickView>
#include <QScreen>
#include <QUrl>

#include <unistd.h>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <string_view>

namespace tessivo {
namespace {

// A name that nobody types by chance: the program itself has no command line.
constexpr const char* stopWindowName = "tessivo-stopped";
constexpr const char* programName = "tessivo";
constexpr int exitCode = 1;

constexpr std::array<std::string_view, 7> languages{"en", "de", "fr", "es", "ru", "ja", "ar"};

/// The same executable under another name; returns only on failure.
void execute(const char* name, const char* argument) {
    const std::array<const char*, 3> arguments{name, argument, nullptr};
    ::execv("/proc/self/exe", const_cast<char* const*>(arguments.data()));
}

void startProgram(const std::optional<std::string>& locale) {
    if (locale)
        ::setenv("LC_ALL", localeVariable(*locale).c_str(), 1);
    execute(programName, nullptr);
}

JsonLocalizedTexts textsIn(const std::string& language) {
    QFile file(QString::fromStdString(":/tessivo/machine-texts/" + language + ".json"));
    auto texts = JsonLocalizedTexts::fromJson(file.open(QIODevice::ReadOnly) ? file.readAll().toStdString()
                                                                             : std::string());
    return texts ? std::move(texts.value()) : JsonLocalizedTexts();
}

bool canBeSeen() {
    const QString platform = QGuiApplication::platformName();
    return platform != QLatin1String("offscreen") && platform != QLatin1String("minimal");
}

} // namespace

bool hasDisplay() {
    return std::ranges::any_of(std::array{"WAYLAND_DISPLAY", "DISPLAY", "QT_QPA_PLATFORM"},
                               [](const char* name) { return qEnvironmentVariableIsSet(name); });
}

void becomeStopWindow(const std::string& cause) {
    execute(stopWindowName, cause.c_str());
}

bool isStopWindow(int argc, char** argv) {
    return argc == 2 && std::string_view(argv[0]) == stopWindowName;
}

int runStopWindow(int argc, char** argv) {
    if (!hasDisplay())
        return exitCode;
    const std::string cause = argv[1];
    const QGuiApplication application(argc, argv);
    if (!canBeSeen())
        return exitCode;
    QGuiApplication::setApplicationDisplayName(QStringLiteral("Tessivo"));
    QGuiApplication::setDesktopFileName(QStringLiteral("org.tessivo.Tessivo"));
    QFont font;
    font.setFamilies({QStringLiteral("Noto Sans"), QStringLiteral("Noto Color Emoji")});
    QGuiApplication::setFont(font);
    const std::string language = languageFor(deviceLocale(LocalePurpose::Texts), languages);
    QGuiApplication::setLayoutDirection(QLocale(QString::fromStdString(language)).textDirection());

    const JsonLocalizedTexts texts = textsIn(language);
    StopWindow stop({freedesktop::dataFolder(), deviceLocale(LocalePurpose::Dates), language, startProgram,
                     [](const QString& folder) { QDesktopServices::openUrl(QUrl::fromLocalFile(folder)); },
                     [] { QGuiApplication::exit(exitCode); }},
                    cause, texts);
    QQuickView view;
    view.setResizeMode(QQuickView::SizeRootObjectToView);
    view.setMinimumSize({320, 360});
    view.setInitialProperties({{QStringLiteral("stop"), QVariant::fromValue(&stop)}});
    view.setSource(QUrl(QStringLiteral("qrc:/tessivo/stop/StopWindow.qml")));
    if (view.status() != QQuickView::Ready)
        return exitCode;
    const QQuickItem* page = view.rootObject();
    const auto fitHeight = [&] {
        const int available = view.screen()->availableGeometry().height();
        view.setHeight(std::min(static_cast<int>(page->implicitHeight()), available));
    };
    QObject::connect(page, &QQuickItem::implicitHeightChanged, &view, fitHeight);
    view.show();
    QGuiApplication::exec();
    return exitCode;
}

} // namespace tessivo
