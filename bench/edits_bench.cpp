// A thousand edits in one run: each Save lays new lists over all screens that stood, and none of them ever
// goes. What an edit takes must not grow with them. Memory grows by the screens that stay, and each list that
// has appeared ticks every minute for the life of the program: both are counted.

#include "AddEventVC/WizardScreen.h"
#include "Event/CoreDataStack.h"
#include "Support/ScreenFactory.h"
#include "bench/EventRows.h"
#include "tests/support/Program.h"

#include <benchmark/benchmark.h>
#include <malloc.h>

#include <array>
#include <chrono>

namespace tessivo {
namespace {

constexpr int events = 20;
constexpr int edits = 1'000;
constexpr int share = 100; ///< edits at the start and at the end that are compared

/// Opens an event on one of the four screens in turn and saves it; gives the seconds that took.
double edit(Program& program, int number) {
    const auto kind = std::array{EditScreen::Title, EditScreen::DateAndTime, EditScreen::Reminder,
                                 EditScreen::Background}[static_cast<std::size_t>(number % 4)];
    const auto start = std::chrono::steady_clock::now();
    auto row = program.services().makeCoreDataStack()->fetchEvent(*eventItem(number % events).id);
    program.stack().top()->present(program.services().screens().makeEdit(kind, std::move(row)), false);
    program.top<WizardScreen>().nextButton.tap();
    program.notifications.run();
    const std::chrono::duration<double> took = std::chrono::steady_clock::now() - start;
    program.settle();
    return took.count();
}

double megabytesInUse() {
    return static_cast<double>(mallinfo2().uordblks) / 1e6;
}

void saveEdits(benchmark::State& state) {
    for (auto _ : state) {
        Program program;
        for (int number = 0; number < events; ++number) {
            auto item = eventItem(number);
            item.color = 3;
            program.services().coreDataStack().addEvent(item);
        }
        double first = 0;
        double last = 0;
        double whole = 0;
        double early = 0;
        for (int number = 0; number < edits; ++number) {
            if (number == share)
                early = megabytesInUse();
            const double took = edit(program, number);
            whole += took;
            first += number < share ? took : 0;
            last += number >= edits - share ? took : 0;
        }
        state.SetIterationTime(whole);
        state.counters["first_ms"] = first / share * 1e3;
        state.counters["last_ms"] = last / share * 1e3;
        state.counters["ratio"] = last / first;
        state.counters["kB_per_edit"] = (megabytesInUse() - early) / (edits - share) * 1e3;
        state.counters["screens"] = static_cast<double>(program.stack().screens().size());
        state.counters["timers"] = static_cast<double>(program.timeline.pending());
    }
}
BENCHMARK(saveEdits)->Iterations(1)->UseManualTime()->Unit(benchmark::kMillisecond);

} // namespace
} // namespace tessivo
