// The pass over all events against its floor, in turns: two bare scans of the rows and one date parse a row.

#include "Event/CoreDataStack.h"
#include "Event/EventDate.h"
#include "Event/FetchEventDataType.h"
#include "Event/ReminderScheduler.h"
#include "bench/Duel.h"
#include "bench/EventRows.h"
#include "fakes/RecordingConsole.h"
#include "fakes/Timeline.h"
#include "icu/IcuCalendar.h"
#include "icu/IcuDateFormatters.h"
#include "sqlite/SqliteEventStore.h"
#include "tests/support/TemporaryFolder.h"

#include <benchmark/benchmark.h>

namespace tessivo {
namespace {

/// The center forgets what it is asked: only the main thread's share of the pass is measured.
class DeafNotificationCenter final : public NotificationCenter {
public:
    void requestAuthorization(int, std::function<void(bool, Outcome)>) override {}
    void getNotificationSettings(std::function<void(AuthorizationStatus)>) override {}
    void
    getPendingNotificationRequests(std::function<void(const std::vector<NotificationRequest>&)>) override {}
    void add(NotificationRequest, std::function<void(Outcome)>) override {}
    void removePendingNotificationRequests(std::vector<std::string>) override {}
};

/// A minute like any other: nothing to roll. With `past`, every other event is past and reminds.
void pass(benchmark::State& state, bool past) {
    const TemporaryFolder folder;
    fakes::RecordingConsole console;
    fakes::Timeline line(instantAt(1'900'000'000)); // March 2030
    const IcuCalendar calendar("en_US", "Europe/Berlin");
    const IcuDateFormatters formatters("en_US", "Europe/Berlin");
    DeafNotificationCenter center;
    sqlite::SqliteEventStore store(folder / "events.db");
    CoreDataStack shared(store, console);
    ReminderScheduler scheduler(center, calendar, formatters, line, console);
    FetchEventDataType fetch(store, shared, scheduler, formatters, calendar, line, console);
    for (int number = 0; number < state.range(0); ++number) {
        auto item = eventItem(number);
        if (past && number % 2 == 0) {
            item.dateEvent = "05 September 2029";
            item.eventType = false;
            item.repReminder = 1;
        }
        shared.addEvent(item);
    }
    auto database = orExit(sqlite::Database::open(folder / "events.db", sqlite::eventSchema));
    auto rows = orExit(database.prepare("SELECT key, " + columns(", ", true) + " FROM events ORDER BY key"));
    Duel duel;
    for (auto _ : state) {
        duel.floor([&] {
            scan(rows);
            scan(rows);
            const auto formatter = formatters.make(fullFormat);
            for (int number = 0; number < state.range(0); ++number)
                benchmark::DoNotOptimize(formatter->date("05 September 2031 6:30 PM"));
        });
        duel.ours([&] { fetch.refreshEvents(); });
    }
    duel.report(state, static_cast<double>(state.range(0)));
}

BENCHMARK_CAPTURE(pass, ahead, false)->Arg(100)->Arg(1'000)->Arg(10'000)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(pass, halfOfThemPast, true)
    ->Arg(100)
    ->Arg(1'000)
    ->Arg(10'000)
    ->Unit(benchmark::kMillisecond);

} // namespace
} // namespace tessivo
