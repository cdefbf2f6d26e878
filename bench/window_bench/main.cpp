// What the window costs: time and memory from the start of the process to the first picture, against a
// program that opens a Qt Quick window with one line of text, and the same for each picture while a long list
// scrolls, against a short one. Each measurement has a process and a copy of the events of its own; the kinds
// take turns, so that a busy machine hits them alike, and the medians count.
//
// Run it on a session bus, as a desktop has one: dbus-run-session -- window_bench

#include "app/Composition.h"
#include "bench/EventFolder.h"
#include "bench/ProcessCost.h"
#include "bench/ScrollingList.h"
#include "standard/StandardConsole.h"
#include "standard/SystemClock.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFont>
#include <QGuiApplication>
#include <QProcess>
#include <QQuickWindow>
#include <QTemporaryDir>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <optional>
#include <vector>

namespace {

using namespace tessivo;

constexpr int turns = 9;
constexpr int pictures = 400;
constexpr double step = 37; ///< points between two pictures: a lively fling

struct Cost {
    double processor; ///< ms
    double wall;      ///< ms, of the whole process
    double megabytes;
};

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
    report((processMilliseconds() - before) / pictures);
}

int measureProgram(QGuiApplication& application, const QString& folder, bool scrolls) {
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
                report(processMilliseconds());
            QMetaObject::invokeMethod(
                window, [window] { scroll(*window); }, Qt::QueuedConnection);
        },
        Qt::SingleShotConnection);
    return QGuiApplication::exec();
}

std::optional<Cost> measureInProcess(const QStringList& command) {
    QProcess process;
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    QElapsedTimer timer;
    timer.start();
    process.start(command[0], command.mid(1));
    process.waitForFinished(-1);
    Cost cost{};
    cost.wall = static_cast<double>(timer.nsecsElapsed()) / 1e6;
    if (std::sscanf(process.readAllStandardOutput().constData(), "%lf %lf", &cost.processor,
                    &cost.megabytes) != 2)
        return std::nullopt;
    return cost;
}

double median(const std::vector<Cost>& costs, double Cost::*part) {
    std::vector<double> values;
    for (const Cost& cost : costs)
        values.push_back(cost.*part);
    std::ranges::nth_element(values, values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2));
    return values[values.size() / 2];
}

/// A folder with this many events, as the last run has left it. Starts get copies.
class Events {
public:
    explicit Events(int count) { fillFolder(folder_.path().toStdString(), count); }

    void copyTo(const QTemporaryDir& copy) const {
        const QDir folder(folder_.path());
        for (const QString& file : folder.entryList(QDir::Files))
            QFile::copy(folder.filePath(file), copy.filePath(file));
    }

private:
    QTemporaryDir folder_;
};

/// What is measured: the floor where there are no events, else the program with them.
struct Side {
    const Events* events = nullptr;
    const char* act = "start";

    [[nodiscard]] std::optional<Cost> measure() const {
        if (!events)
            return measureInProcess({QGuiApplication::applicationDirPath() + QStringLiteral("/text_window")});
        const QTemporaryDir copy;
        events->copyTo(copy);
        return measureInProcess({QGuiApplication::applicationFilePath(), QLatin1String(act), copy.path()});
    }
};

struct Contest {
    const char* name;
    Side floor;
    Side ours;
};

bool hold(const Contest& contest) {
    std::vector<Cost> costs[2];
    for (int turn = 0; turn < turns; ++turn) {
        for (const int side : {0, 1}) {
            const auto cost = (side == 0 ? contest.floor : contest.ours).measure();
            if (!cost)
                return false;
            costs[side].push_back(*cost);
        }
    }
    std::printf("%s\n", contest.name);
    const auto line = [&](const char* what, double Cost::*part) {
        const double floor = median(costs[0], part);
        const double ours = median(costs[1], part);
        std::printf("  %-14s %8.2f against %8.2f: %.2f x\n", what, ours, floor, ours / floor);
    };
    line("wall, ms", &Cost::wall);
    line("processor, ms", &Cost::processor);
    line("memory, MB", &Cost::megabytes);
    return true;
}

int holdAll() {
    if (qEnvironmentVariableIsEmpty("DBUS_SESSION_BUS_ADDRESS")) {
        std::fprintf(stderr, "There is no session bus: run it with dbus-run-session\n");
        return EXIT_FAILURE;
    }
    const Events none(0);
    const Events few(20);
    const Events thousand(1'000);
    const Events tenThousand(10'000);
    const bool held = hold({"start, no events", {}, {&none}}) &&
                      hold({"start, 1,000 events", {}, {&thousand}}) &&
                      hold({"scrolling 10,000 against 20", {&few, "scroll"}, {&tenThousand, "scroll"}});
    return held ? EXIT_SUCCESS : EXIT_FAILURE;
}

} // namespace

int main(int argc, char** argv) {
    qputenv("LC_ALL", "en_US.UTF-8");
    QGuiApplication application(argc, argv);
    QFont font;
    font.setFamilies({QStringLiteral("Noto Sans"), QStringLiteral("Noto Color Emoji")});
    QGuiApplication::setFont(font);
    const QStringList arguments = QGuiApplication::arguments().mid(1);
    if (arguments.isEmpty())
        return holdAll();
    return measureProgram(application, arguments[1], arguments[0] == QStringLiteral("scroll"));
}
