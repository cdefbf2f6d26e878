// What scrolling the photo browser costs while the pictures come in from the demo service: the main thread's
// processor time of each picture of the window, and the memory on the way through 600 photos, against the
// same grid with a screenful of them. Each measurement has a process of its own; the kinds take turns, and
// the medians count.

#include "DemoPhotos.h"
#include "Ports/SavedSettings.h"
#include "Support/SettingKeys.h"
#include "UnsplashPicker/PickerServices.h"
#include "UnsplashPicker/UnsplashPicker.h"
#include "app/Composition.h"
#include "bench/ProcessCost.h"
#include "bench/ScrollingList.h"
#include "standard/StandardConsole.h"
#include "standard/SystemClock.h"

#include <QFont>
#include <QGuiApplication>
#include <QProcess>
#include <QQuickItem>
#include <QQuickWindow>
#include <QTemporaryDir>
#include <QTimer>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <functional>
#include <optional>
#include <utility>
#include <vector>

namespace {

using namespace tessivo;

constexpr int turns = 3;
constexpr int screenful = 12;
constexpr int manyPhotos = 600;
constexpr std::size_t passes = 2;
constexpr std::size_t framesPerPass = 1100; ///< once through all of the many
constexpr double step = 60;                 ///< points between two frames: a hard fling
constexpr int frameInterval = 16;           ///< ms

/// Milliseconds and megabytes.
struct Cost {
    double median;
    double slow; ///< the 99th percentile
    double memoryAtStart;
    double memoryAfterOnePass;
    double memoryAfterTwo;
};

double threadMilliseconds() {
    timespec time{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_nsec) * 1e-6;
}

double percentile(std::vector<double> values, double share) {
    const auto rank = static_cast<std::ptrdiff_t>(static_cast<double>(values.size() - 1) * share);
    std::ranges::nth_element(values, values.begin() + rank);
    return values[static_cast<std::size_t>(rank)];
}

/// Scrolls down and up at the pace of a screen, and notes what each frame costs, with all that comes in
/// between two frames.
class Scroll {
public:
    explicit Scroll(QQuickItem& list) : list_(list) { timer_.setTimerType(Qt::PreciseTimer); }

    void start(std::function<void()> passed) {
        passed_ = std::move(passed);
        QObject::connect(&timer_, &QTimer::timeout, &list_, [this] { nextFrame(); });
        before_ = threadMilliseconds();
        timer_.start(frameInterval);
    }

    [[nodiscard]] const std::vector<double>& times() const { return times_; }

private:
    void nextFrame() {
        const double now = threadMilliseconds();
        times_.push_back(now - std::exchange(before_, now));
        const double end = wayOf(list_);
        const double y = list_.property("contentY").toDouble() + direction_ * step;
        if (y >= end || y <= 0)
            direction_ = y <= 0 ? 1 : -1;
        list_.setProperty("contentY", std::clamp(y, 0.0, std::max(end, 0.0)));
        if (times_.size() % framesPerPass == 0)
            passed_();
    }

    QQuickItem& list_;
    QTimer timer_;
    std::function<void()> passed_;
    std::vector<double> times_;
    double before_ = 0;
    double direction_ = 1;
};

int measure(QGuiApplication& application, int photos) {
    QTemporaryDir folder;
    DemoPhotos service(photos);
    StandardConsole console;
    SystemClock clock;
    const std::string data = folder.path().toStdString();
    Composition program({.data = data,
                         .caches = data + "/caches",
                         .language = "en",
                         .tellReminderHelper = [] {},
                         .photoService = service.address()},
                        clock, console);
    program.services().platform().settings.setBoolean(settingKeys::isFirstLaunch,
                                                      true); // straight to the lists
    program.start();
    auto configuration = program.services().photoPicker().configuration();
    configuration.accessKey = "any key";
    const auto picker = unsplash::UnsplashPicker::make(program.services().photoPicker(),
                                                       program.services().window(), configuration);
    program.stack().top()->present(picker, false);
    const auto& grid = picker->photoPickerViewController().collectionView;

    std::optional<Scroll> scroll;
    std::vector<double> memory;
    const auto passed = [&] {
        memory.push_back(residentMegabytes());
        if (memory.size() <= passes)
            return;
        QGuiApplication::exit(grid.numberOfItems() == photos ? EXIT_SUCCESS : EXIT_FAILURE);
    };
    // The first page and its pictures have come by then.
    QTimer::singleShot(2'000, &application, [&] {
        memory.push_back(residentMegabytes());
        scroll.emplace(scrollingList(*program.shell().window())).start(passed);
    });
    const int result = QGuiApplication::exec();
    if (result != EXIT_SUCCESS)
        std::fprintf(stderr, "Only %d of %d photos have come\n", grid.numberOfItems(), photos);
    std::printf("%f %f %f %f %f\n", percentile(scroll->times(), 0.5), percentile(scroll->times(), 0.99),
                memory[0], memory[1], memory[2]);
    return result;
}

std::optional<Cost> measureInProcess(int photos) {
    QProcess process;
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process.start(QGuiApplication::applicationFilePath(), {QString::number(photos)});
    process.waitForFinished(-1);
    Cost cost{};
    if (std::sscanf(process.readAllStandardOutput().constData(), "%lf %lf %lf %lf %lf", &cost.median,
                    &cost.slow, &cost.memoryAtStart, &cost.memoryAfterOnePass, &cost.memoryAfterTwo) != 5)
        return std::nullopt;
    return cost;
}

double medianOf(const std::vector<Cost>& costs, double Cost::*what) {
    std::vector<double> values;
    for (const Cost& cost : costs)
        values.push_back(cost.*what);
    return percentile(std::move(values), 0.5);
}

int compare() {
    std::vector<Cost> few;
    std::vector<Cost> many;
    for (int turn = 0; turn < turns; ++turn) {
        const auto floor = measureInProcess(screenful);
        const auto ours = measureInProcess(manyPhotos);
        if (!floor || !ours)
            return EXIT_FAILURE;
        few.push_back(*floor);
        many.push_back(*ours);
    }
    for (const auto& [name, what] :
         {std::pair("frame, median", &Cost::median), std::pair("frame, 99 in 100 are faster", &Cost::slow)}) {
        const double ours = medianOf(many, what);
        const double floor = medianOf(few, what);
        std::printf("%-32s %8.2f ms against %8.2f ms: %.2f x\n", name, ours, floor, ours / floor);
    }
    for (const auto& [name, what] : {std::pair("memory, first photos", &Cost::memoryAtStart),
                                     std::pair("memory, after all of them", &Cost::memoryAfterOnePass),
                                     std::pair("memory, after a second time", &Cost::memoryAfterTwo)}) {
        const double ours = medianOf(many, what);
        const double floor = medianOf(few, what);
        std::printf("%-32s %8.1f MB against %8.1f MB: %.2f x\n", name, ours, floor, ours / floor);
    }
    return EXIT_SUCCESS;
}

} // namespace

int main(int argc, char** argv) {
    qputenv("LC_ALL", "en_US.UTF-8");
    QGuiApplication application(argc, argv);
    QFont font;
    font.setFamilies({QStringLiteral("Noto Sans"), QStringLiteral("Noto Color Emoji")});
    QGuiApplication::setFont(font);
    const QStringList arguments = QGuiApplication::arguments();
    return arguments.size() > 1 ? measure(application, arguments[1].toInt()) : compare();
}
