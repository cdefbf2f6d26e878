// Drives the real window through everything that the program has, with synthetic touches, and takes a picture
// of each screen: at phone, small phone, tablet and desktop size and in each language. Any complaint of QML
// fails the tour, and so does a text that no table has or that is cut.

#include "DemoPhotos.h"
#include "Ports/Clock.h"
#include "Stage.h"
#include "StandInPhotoLibrary.h"
#include "Tour.h"
#include "app/Composition.h"
#include "hand/VirtualTime.h"
#include "standard/StandardConsole.h"

#include <QDir>
#include <QFont>
#include <QGuiApplication>
#include <QLocale>
#include <QProcess>
#include <QTemporaryDir>

#include <atomic>
#include <cstdio>
#include <cstdlib>
#include <exception>

namespace {

using namespace tessivo;
using namespace tessivo::tour;

std::atomic<int> complaints = 0;

void complain(QtMsgType type, const QMessageLogContext&, const QString& message) {
    std::fprintf(stderr, "%s\n", qPrintable(message));
    if (type != QtDebugMsg && type != QtInfoMsg)
        ++complaints;
}

/// A wall clock that is stopped, so that every tour gives the same pictures.
class StillClock final : public Clock {
public:
    Instant now() const override { return instantAt(1908261015); } // 21 June 2030, 10:30:15 in Berlin
};

/// The tour of one stage. Language and time zone belong to a process, so each stage has one of its own.
int playStage(QGuiApplication& application, const Stage& stage, const QDir& pictures) {
    QTemporaryDir data;
    const StandInPhotoLibrary photoLibrary;
    DemoPhotos photos;
    StandardConsole console;
    StillClock clock;
    QGuiApplication::setLayoutDirection(QLocale(QLatin1String(stage.language)).textDirection());
    const std::string folder = data.path().toStdString();
    Composition program({folder, folder + "/cache", stage.language, [] {}, photos.address()}, clock, console);
    program.start();
    try {
        Tour(program, stage, pictures).run();
    } catch (const std::exception& error) {
        std::fprintf(stderr, "%s\n", error.what());
        return EXIT_FAILURE;
    }
    application.processEvents();
    return complaints == 0 ? EXIT_SUCCESS : EXIT_FAILURE;
}

/// Plays all stages, each in a process that has the stage's language.
int playAll(const QString& self, const QString& folder) {
    int failures = 0;
    for (const Stage& stage : stages) {
        QProcess process;
        auto environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("LC_ALL"), QLatin1String(stage.locale));
        environment.insert(QStringLiteral("TZ"), QStringLiteral("Europe/Berlin"));
        process.setProcessEnvironment(environment);
        process.setProcessChannelMode(QProcess::ForwardedChannels);
        process.start(self, {folder, QLatin1String(stage.name)});
        process.waitForFinished(-1);
        if (process.exitStatus() != QProcess::NormalExit || process.exitCode() != EXIT_SUCCESS) {
            std::fprintf(stderr, "The tour failed on stage %s\n", stage.name);
            ++failures;
        }
    }
    return failures == 0 ? EXIT_SUCCESS : EXIT_FAILURE;
}

} // namespace

int main(int argc, char** argv) {
    virtualtime::start();
    // Every run gives byte-identical pictures: the main thread draws, and hashes are not randomised.
    qputenv("QSG_RENDER_LOOP", "basic");
    qputenv("QT_HASH_SEED", "0");
    QGuiApplication application(argc, argv);
    const QStringList arguments = QGuiApplication::arguments();
    if (arguments.size() < 2) {
        std::fprintf(stderr, "usage: tessivo-tour FOLDER [STAGE]\n");
        return EXIT_FAILURE;
    }
    const QDir pictures(arguments[1]);
    if (!pictures.mkpath(QStringLiteral("."))) {
        std::fprintf(stderr, "The folder %s cannot be made\n", qPrintable(arguments[1]));
        return EXIT_FAILURE;
    }
    if (arguments.size() == 2)
        return playAll(QGuiApplication::applicationFilePath(), arguments[1]);

    qInstallMessageHandler(complain);
    QFont font;
    font.setFamilies({QStringLiteral("Noto Sans"), QStringLiteral("Noto Color Emoji")});
    QGuiApplication::setFont(font);
    for (const Stage& stage : stages) {
        if (arguments[2] == QLatin1String(stage.name))
            return playStage(application, stage, pictures);
    }
    std::fprintf(stderr, "There is no stage named %s\n", qPrintable(arguments[2]));
    return EXIT_FAILURE;
}
