// What the window costs: the processor time and the memory from the start of the program to the first
// picture, against an empty Qt Quick window, and the same for each picture while a long list scrolls, against
// a short one. Each measurement has a process of its own; the kinds take turns, so that a busy machine hits
// them alike, and the medians count.

#include "app/Composition.h"
#include "bench/EventFolder.h"
#include "bench/ScrollingList.h"
#include "standard/StandardConsole.h"
#include "standard/SystemClock.h"

#include <QFile>
#include <QFont>
#include <QGuiApplication>
#include <QProcess>
#include <QQmlApplicationEngine>
#include <QQuickWindow>
#include <QTemporaryDir>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <map>
#include <optional>
#include <vector>

namespace {

using namespace tessivo;

constexpr int turns = 9;
constexpr int pictures = 400;
constexpr double step = 37; ///< points between two pictures: a lively fling

struct Cost {
    double milliseconds;
    double megabytes;
};

double processMilliseconds() {
    timespec time{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_nsec) * 1e-6;
}

double residentMegabytes() {
    QFile status(QStringLiteral("/proc/self/status"));
    if (!status.open(QIODevice::ReadOnly))
        return 0;
    const QByteArray text = status.readAll();
    const auto line = text.mid(text.indexOf("VmRSS:") + 6);
    return line.left(line.indexOf("kB")).trimmed().toDouble() / 1024;
}

void report(Cost cost) {
    std::printf("%f %f\n", cost.milliseconds, cost.megabytes);
    std::fflush(stdout);
    std::_Exit(EXIT_SUCCESS);
}

/// Scrolls down, and back up where the list ends, one step a picture.
void scroll(QQuickWindow& window) {
    QQuickItem& list = scrollingList(window);
    const double end = wayOf(list);
    const double before = processMilliseconds();
    for (int picture = 1; picture <= pictures; ++picture) {
        const double way = std::fmod(picture * step, 2 * end);
        list.setProperty("contentY", way <= end ? way : 2 * end - way);
        window.grabWindow();
    }
    report({(processMilliseconds() - before) / pictures, residentMegabytes()});
}

int measureEmptyWindow(QGuiApplication& application, double start) {
    QQmlApplicationEngine engine;
    engine.loadData("import QtQuick\nWindow { width: 390; height: 844; visible: true }");
    auto* window = qobject_cast<QQuickWindow*>(engine.rootObjects().constFirst());
    QObject::connect(window, &QQuickWindow::frameSwapped, &application, [start] {
        report({processMilliseconds() - start, residentMegabytes()});
    });
    return QGuiApplication::exec();
}

int measureProgram(QGuiApplication& application, double start, const QString& folder, bool scrolls) {
    StandardConsole console;
    SystemClock clock;
    const std::string data = folder.toStdString();
    Composition program(
        {.data = data, .caches = data + "/caches", .language = "en", .tellReminderHelper = [] {}}, clock,
        console);
    program.start();
    QQuickWindow* const window = program.shell().window();
    QObject::connect(
        window, &QQuickWindow::frameSwapped, &application,
        [=] {
            if (!scrolls)
                report({processMilliseconds() - start, residentMegabytes()});
            QMetaObject::invokeMethod(
                window, [window] { scroll(*window); }, Qt::QueuedConnection);
        },
        Qt::SingleShotConnection);
    return QGuiApplication::exec();
}

std::optional<Cost> measureInProcess(const QStringList& arguments) {
    QProcess process;
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process.start(QGuiApplication::applicationFilePath(), arguments);
    process.waitForFinished(-1);
    Cost cost{};
    if (std::sscanf(process.readAllStandardOutput().constData(), "%lf %lf", &cost.milliseconds,
                    &cost.megabytes) != 2)
        return std::nullopt;
    return cost;
}

double median(std::vector<double> values) {
    std::ranges::nth_element(values, values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2));
    return values[values.size() / 2];
}

struct Contest {
    const char* name;
    QStringList floor;
    QStringList ours;
};

bool hold(const Contest& contest) {
    std::vector<double> time[2];
    std::vector<double> memory[2];
    for (int turn = 0; turn < turns; ++turn) {
        for (const int side : {0, 1}) {
            const auto cost = measureInProcess(side == 0 ? contest.floor : contest.ours);
            if (!cost)
                return false;
            time[side].push_back(cost->milliseconds);
            memory[side].push_back(cost->megabytes);
        }
    }
    std::printf("%-32s %8.2f ms against %8.2f ms: %.2f x   %6.1f MB against %6.1f MB: %.2f x\n", contest.name,
                median(time[1]), median(time[0]), median(time[1]) / median(time[0]), median(memory[1]),
                median(memory[0]), median(memory[1]) / median(memory[0]));
    return true;
}

int holdAll() {
    std::map<int, QTemporaryDir> folders;
    for (const int events : {0, 20, 1'000, 10'000})
        fillFolder(folders[events].path().toStdString(), events);
    const auto start = [&](int events) {
        return QStringList{QStringLiteral("start"), folders[events].path()};
    };
    const auto scrolling = [&](int events) {
        return QStringList{QStringLiteral("scroll"), folders[events].path()};
    };
    const QStringList empty{QStringLiteral("empty")};
    const bool held = hold({"start, no events", empty, start(0)}) &&
                      hold({"start, 1,000 events", empty, start(1'000)}) &&
                      hold({"scrolling 10,000 against 20", scrolling(20), scrolling(10'000)});
    return held ? EXIT_SUCCESS : EXIT_FAILURE;
}

} // namespace

int main(int argc, char** argv) {
    const double start = processMilliseconds();
    qputenv("LC_ALL", "en_US.UTF-8");
    QGuiApplication application(argc, argv);
    QFont font;
    font.setFamilies({QStringLiteral("Noto Sans"), QStringLiteral("Noto Color Emoji")});
    QGuiApplication::setFont(font);
    const QStringList arguments = QGuiApplication::arguments().mid(1);
    if (arguments.isEmpty())
        return holdAll();
    if (arguments[0] == QStringLiteral("empty"))
        return measureEmptyWindow(application, start);
    return measureProgram(application, start, arguments[1], arguments[0] == QStringLiteral("scroll"));
}
