// How smooth the list feels: the wall time from a finger's move to its picture, in a real window on OpenGL,
// against a bare Qt Quick list under the same finger. A swipe that opens a card's buttons and lets go, and a
// fling through 200 cards. Each measurement has a process of its own; the two sides take turns.
//
// Run it on a display of its own: xvfb-run -a -s "-screen 0 1280x1024x24" frames_bench

#include "Ports/SavedSettings.h"
#include "Support/SettingKeys.h"
#include "app/Composition.h"
#include "bench/EventFolder.h"
#include "bench/ScrollingList.h"
#include "standard/StandardConsole.h"
#include "standard/SystemClock.h"

#include <QElapsedTimer>
#include <QFont>
#include <QGuiApplication>
#include <QProcess>
#include <QQmlApplicationEngine>
#include <QQuickWindow>
#include <QTemporaryDir>
#include <QTest>

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <optional>
#include <vector>

namespace {

using namespace tessivo;

constexpr int turns = 5;
constexpr int cards = 200;

struct Smoothness {
    double median;
    double slowest; ///< of a hundred
};

/// Writes down how long each picture took.
class FrameTimes {
public:
    explicit FrameTimes(QQuickWindow& window) : window_(window) {
        QObject::connect(&window, &QQuickWindow::frameSwapped, &window, [this] { ++pictures_; });
    }

    /// The time of `act` with the picture that follows it.
    template <class Act>
    void take(Act act) {
        QElapsedTimer timer;
        timer.start();
        const int before = pictures_;
        act();
        window_.update();
        while (pictures_ == before)
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        milliseconds_.push_back(static_cast<double>(timer.nsecsElapsed()) / 1e6);
    }

    [[noreturn]] void report() {
        std::ranges::sort(milliseconds_);
        const auto at = [&](double share) {
            return milliseconds_[static_cast<std::size_t>(share *
                                                          static_cast<double>(milliseconds_.size() - 1))];
        };
        std::printf("%f %f\n", at(0.5), at(0.99));
        std::fflush(stdout);
        std::_Exit(EXIT_SUCCESS);
    }

private:
    QQuickWindow& window_;
    int pictures_ = 0;
    std::vector<double> milliseconds_;
};

/// Ten cards, one after another: 20 moves to the left, 20 back, so that nothing stays open.
void swipe(QQuickWindow& window, FrameTimes& times) {
    auto* const finger = QTest::createTouchDevice();
    constexpr int moves = 20;
    for (int round = 0; round < 10; ++round) {
        const QPoint start(330, 250 + round % 2 * 216);
        times.take([&] { QTest::touchEvent(&window, finger).press(0, start); });
        const auto moveTo = [&](int left) {
            times.take([&] { QTest::touchEvent(&window, finger).move(0, start - QPoint(left, 0)); });
        };
        for (int move = 1; move <= moves; ++move)
            moveTo(move * 9);
        for (int move = moves; move >= 0; --move)
            moveTo(move * 9);
        times.take([&] { QTest::touchEvent(&window, finger).release(0, start); });
        for (int settling = 0; settling < 30; ++settling)
            times.take([] {});
    }
}

/// The list itself is moved, as a fling would: fast at first, slower and slower, down and up again.
void fling(QQuickWindow& window, FrameTimes& times) {
    QQuickItem& list = scrollingList(window);
    const double end = wayOf(list);
    constexpr int pictures = 300;
    for (int picture = 1; picture <= 2 * pictures; ++picture) {
        const double rest =
            1 - static_cast<double>(picture > pictures ? 2 * pictures - picture : picture) / pictures;
        times.take([&] { list.setProperty("contentY", end * (1 - rest * rest * rest)); });
    }
}

[[noreturn]] void measure(QQuickWindow& window, const QString& act) {
    if (!QTest::qWaitForWindowExposed(&window))
        std::_Exit(EXIT_FAILURE);
    QTest::qWait(500);
    FrameTimes times(window);
    if (act == QStringLiteral("swipe"))
        swipe(window, times);
    else
        fling(window, times);
    times.report();
}

[[noreturn]] void measureBareList(const QString& act) {
    QQmlApplicationEngine engine(QUrl(QStringLiteral("qrc:/BareList.qml")));
    measure(*qobject_cast<QQuickWindow*>(engine.rootObjects().constFirst()), act);
}

[[noreturn]] void measureProgram(const QString& act) {
    QTemporaryDir folder;
    const std::string data = folder.path().toStdString();
    fillFolder(data, cards);
    StandardConsole console;
    SystemClock clock;
    Composition program(
        {.data = data, .caches = data + "/caches", .language = "en", .tellReminderHelper = [] {}}, clock,
        console);
    program.services().platform().settings.setBoolean(settingKeys::isFirstLaunch,
                                                      true); // straight to the lists
    program.start();
    program.shell().window()->resize(390, 844);
    measure(*program.shell().window(), act);
}

std::optional<Smoothness> measureInProcess(const QString& who, const QString& act) {
    QProcess process;
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process.start(QGuiApplication::applicationFilePath(), {who, act});
    process.waitForFinished(-1);
    Smoothness measured{};
    if (std::sscanf(process.readAllStandardOutput().constData(), "%lf %lf", &measured.median,
                    &measured.slowest) != 2)
        return std::nullopt;
    return measured;
}

double medianOf(std::array<double, turns> values) {
    std::ranges::nth_element(values, values.begin() + turns / 2);
    return values[turns / 2];
}

bool hold(const QString& act) {
    std::array<std::array<double, turns>, 2> median{};
    std::array<std::array<double, turns>, 2> slowest{};
    for (std::size_t turn = 0; turn < turns; ++turn) {
        for (const std::size_t side : {0U, 1U}) {
            const auto measured =
                measureInProcess(side == 0 ? QStringLiteral("floor") : QStringLiteral("ours"), act);
            if (!measured)
                return false;
            median[side][turn] = measured->median;
            slowest[side][turn] = measured->slowest;
        }
    }
    const auto line = [&](const char* what, const std::array<std::array<double, turns>, 2>& values) {
        const double ours = medianOf(values[1]);
        const double floor = medianOf(values[0]);
        std::printf("%s %s %.2f ms against %.2f ms: %.2f x\n", qPrintable(act), what, ours, floor,
                    ours / floor);
    };
    line("p50", median);
    line("p99", slowest);
    return true;
}

} // namespace

int main(int argc, char** argv) {
    qputenv("LC_ALL", "en_US.UTF-8");
    // A picture follows its cause at once: the display has no refresh to wait for.
    qputenv("QT_QPA_UPDATE_IDLE_TIME", "0");
    QGuiApplication application(argc, argv);
    QFont font;
    font.setFamilies({QStringLiteral("Noto Sans"), QStringLiteral("Noto Color Emoji")});
    QGuiApplication::setFont(font);
    const QStringList arguments = QGuiApplication::arguments().mid(1);
    if (arguments.isEmpty())
        return hold(QStringLiteral("swipe")) && hold(QStringLiteral("fling")) ? EXIT_SUCCESS : EXIT_FAILURE;
    if (arguments[0] == QStringLiteral("floor"))
        measureBareList(arguments[1]);
    measureProgram(arguments[1]);
}
