// How light the list's pictures are, in a real window on OpenGL, against a bare Qt Quick list of as many
// rounded cards with texts and shadows under the same finger: a swipe that opens a card's buttons and lets
// go, and a fling through 200 cards. Stated are the wall time from a finger's move to its picture, what the
// main thread and the one that walks the scene take of the processor for it (a software rasterizer has
// threads of its own), the pixels blended and the program's allocations. Each measurement has a process of
// its own; the two sides take turns.
//
// Run it on a display and a session bus of its own:
// dbus-run-session -- xvfb-run -a -s "-screen 0 1280x1024x24" frames_bench

#include "DrawnPixels.h"
#include "OwnAllocations.h"
#include "app/Composition.h"
#include "bench/EventFolder.h"
#include "bench/ScrollingList.h"
#include "standard/StandardConsole.h"
#include "standard/SystemClock.h"

#include <QElapsedTimer>
#include <QFont>
#include <QGuiApplication>
#include <QPainter>
#include <QProcess>
#include <QQmlApplicationEngine>
#include <QQuickImageProvider>
#include <QQuickWindow>
#include <QTemporaryDir>
#include <QTest>

#include <algorithm>
#include <array>
#include <atomic>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <memory>
#include <optional>
#include <vector>

namespace {

using namespace tessivo;

constexpr int turns = 5;
constexpr int cards = 200;

/// In the order in which a measurement prints them.
constexpr std::array timed{"wall p50, ms", "wall p99, ms", "main thread, ms", "render thread, ms"};
constexpr std::array counted{"blended pixels", "allocations of ours"};

using Figures = std::array<double, timed.size()>;

double threadMilliseconds() {
    timespec time{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_nsec) * 1e-6;
}

/// Writes down what each picture takes.
class Pictures {
public:
    Pictures(QQuickWindow& window, bool counts) : window_(window) {
        QObject::connect(&window, &QQuickWindow::frameSwapped, &window, [this] { ++pictures_; });
        QObject::connect(
            &window, &QQuickWindow::frameSwapped, &window, [this] { renderThread_ = threadMilliseconds(); },
            Qt::DirectConnection);
        take([] {});
        if (counts) {
            pixels_ = std::make_unique<DrawnPixels>(window);
            countOwnAllocations();
        }
        mainThreadBefore_ = threadMilliseconds();
        renderThreadBefore_ = renderThread_;
        milliseconds_.clear();
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
        const auto pictures = static_cast<double>(milliseconds_.size());
        if (pixels_) {
            std::printf("%f %f\n", pixels_->blended(), static_cast<double>(ownAllocations()) / pictures);
        } else {
            const double mainThread = threadMilliseconds() - mainThreadBefore_;
            const double renderThread = renderThread_ - renderThreadBefore_;
            std::ranges::sort(milliseconds_);
            const auto at = [&](double share) {
                return milliseconds_[static_cast<std::size_t>(share * (pictures - 1))];
            };
            std::printf("%f %f %f %f\n", at(0.5), at(0.99), mainThread / pictures, renderThread / pictures);
        }
        std::fflush(stdout);
        std::_Exit(EXIT_SUCCESS);
    }

private:
    QQuickWindow& window_;
    int pictures_ = 0;
    std::vector<double> milliseconds_;
    double mainThreadBefore_ = 0;
    double renderThreadBefore_ = 0;
    std::atomic<double> renderThread_ = 0; ///< what it has had when the last picture was out
    std::unique_ptr<DrawnPixels> pixels_;
};

/// The bare list's shadow: soft around a card of that corner radius, to be stretched in the middle.
class ShadowPicture final : public QQuickImageProvider {
public:
    ShadowPicture() : QQuickImageProvider(Image) {}

    QImage requestImage(const QString& radius, QSize* size, const QSize&) override {
        constexpr int side = 96;
        QImage picture(side, side, QImage::Format_ARGB32_Premultiplied);
        picture.fill(Qt::transparent);
        QPainter painter(&picture);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(Qt::NoPen);
        painter.setBrush(QColor(18, 23, 46, 6));
        for (double grown = 0; grown < 6; ++grown) {
            const double margin = 12 - grown;
            const QRectF outline = QRectF(picture.rect()).adjusted(margin, margin, -margin, -margin);
            painter.drawRoundedRect(outline.translated(0, 3 + grown * 0.6), radius.toDouble() + grown,
                                    radius.toDouble() + grown);
        }
        *size = picture.size();
        return picture;
    }
};

/// Ten cards, one after another: 20 moves to the left, 20 back, so that nothing stays open.
void swipe(QQuickWindow& window, Pictures& pictures) {
    auto* const finger = QTest::createTouchDevice();
    constexpr int moves = 20;
    for (int round = 0; round < 10; ++round) {
        const QPoint start(330, 250 + round % 2 * 216);
        pictures.take([&] { QTest::touchEvent(&window, finger).press(0, start); });
        const auto moveTo = [&](int left) {
            pictures.take([&] { QTest::touchEvent(&window, finger).move(0, start - QPoint(left, 0)); });
        };
        for (int move = 1; move <= moves; ++move)
            moveTo(move * 9);
        for (int move = moves; move >= 0; --move)
            moveTo(move * 9);
        pictures.take([&] { QTest::touchEvent(&window, finger).release(0, start); });
        for (int settling = 0; settling < 30; ++settling)
            pictures.take([] {});
    }
}

/// The list itself is moved, as a fling would: fast at first, slower and slower, down and up again.
void fling(QQuickWindow& window, Pictures& pictures) {
    QQuickItem& list = scrollingList(window);
    const double end = wayOf(list);
    constexpr int way = 300; // pictures down, and as many up
    for (int picture = 1; picture <= 2 * way; ++picture) {
        const double rest = 1 - static_cast<double>(picture > way ? 2 * way - picture : picture) / way;
        pictures.take([&] { list.setProperty("contentY", end * (1 - rest * rest * rest)); });
    }
}

[[noreturn]] void measure(QQuickWindow& window, const QStringList& what) {
    if (!QTest::qWaitForWindowExposed(&window))
        std::_Exit(EXIT_FAILURE);
    QTest::qWait(500);
    Pictures pictures(window, what.contains(QStringLiteral("count")));
    if (what.contains(QStringLiteral("swipe")))
        swipe(window, pictures);
    else
        fling(window, pictures);
    pictures.report();
}

[[noreturn]] void measureBareList(const QStringList& what) {
    QQmlApplicationEngine engine;
    engine.addImageProvider(QStringLiteral("shadow"), new ShadowPicture);
    engine.load(QUrl(QStringLiteral("qrc:/BareList.qml")));
    measure(*qobject_cast<QQuickWindow*>(engine.rootObjects().constFirst()), what);
}

[[noreturn]] void measureProgram(const QStringList& what) {
    QTemporaryDir folder;
    const std::string data = folder.path().toStdString();
    fillFolder(data, cards);
    StandardConsole console;
    SystemClock clock;
    Composition program(
        {.data = data, .caches = data + "/caches", .language = "en", .tellReminderHelper = [] {}}, clock,
        console);
    program.start();
    program.shell().window()->resize(390, 844);
    measure(*program.shell().window(), what);
}

std::optional<Figures> measureInProcess(const QStringList& what, std::size_t figures) {
    QProcess process;
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process.start(QGuiApplication::applicationFilePath(), what);
    process.waitForFinished(-1);
    const auto printed = process.readAllStandardOutput().split(' ');
    if (static_cast<std::size_t>(printed.size()) != figures)
        return std::nullopt;
    Figures measured{};
    for (std::size_t figure = 0; figure < figures; ++figure)
        measured[figure] = printed[static_cast<qsizetype>(figure)].toDouble();
    return measured;
}

double medianOf(std::vector<double> values) {
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::ranges::nth_element(values, middle);
    return *middle;
}

/// Prints the medians of some turns.
template <std::size_t figures>
bool hold(const char* act, const std::array<const char*, figures>& names, const char* kind, int rounds) {
    std::array<std::array<std::vector<double>, figures>, 2> measured;
    for (int turn = 0; turn < rounds; ++turn) {
        for (const std::size_t side : {0U, 1U}) {
            const auto once = measureInProcess(
                {QLatin1String(side == 0 ? "floor" : "ours"), QLatin1String(act), QLatin1String(kind)},
                figures);
            if (!once)
                return false;
            for (std::size_t figure = 0; figure < figures; ++figure)
                measured[side][figure].push_back((*once)[figure]);
        }
    }
    for (std::size_t figure = 0; figure < figures; ++figure) {
        const double ours = medianOf(measured[1][figure]);
        const double floor = medianOf(measured[0][figure]);
        std::printf("%s %-20s %10.2f against %10.2f: %.2f x\n", act, names[figure], ours, floor,
                    ours / floor);
    }
    return true;
}

bool holdAll(const char* act) {
    return hold(act, timed, "time", turns) && hold(act, counted, "count", 1);
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
        return holdAll("swipe") && holdAll("fling") ? EXIT_SUCCESS : EXIT_FAILURE;
    if (arguments[0] == QStringLiteral("floor"))
        measureBareList(arguments);
    measureProgram(arguments);
}
