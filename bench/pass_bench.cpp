// The pass over all events against its floor, in turns: two bare scans of the rows and one date parse a row.
// Then what a minute with many timers costs beside one pass, what a reminder costs that the pass adds, and
// how time and memory grow with the events.

#include "Event/CoreDataStack.h"
#include "Event/EventDate.h"
#include "Event/FetchEventDataType.h"
#include "Event/ReminderScheduler.h"
#include "Reminders/QueuedNotificationCenter.h"
#include "bench/Duel.h"
#include "bench/EventRows.h"
#include "fakes/RecordingConsole.h"
#include "fakes/Timeline.h"
#include "icu/IcuCalendar.h"
#include "icu/IcuDateFormatters.h"
#include "sqlite/QueueRows.h"
#include "sqlite/SqliteEventStore.h"
#include "sqlite/SqliteNotificationQueue.h"
#include "standard/GregorianCalendar.h"
#include "standard/ThreadWorkQueue.h"
#include "tests/support/TemporaryFolder.h"

#include <benchmark/benchmark.h>

#include <future>
#include <malloc.h>
#include <memory>

namespace tessivo {
namespace {

/// Forgets what it is asked: only the main thread's share of a pass is left.
class DeafNotificationCenter final : public NotificationCenter {
public:
    void requestAuthorization(int, std::function<void(bool, Outcome)>) override {}
    void getNotificationSettings(std::function<void(AuthorizationStatus)>) override {}
    void getPendingNotificationRequests(std::function<void(const PendingRequests&)>) override {}
    void add(NotificationRequest, std::function<void(Outcome)>) override {}
    void removePendingNotificationRequests(std::vector<std::string>) override {}
};

enum class Events { Ahead, HalfPast };

/// A program with its store and its queue of reminders on disk. With `HalfPast` every other event is past and
/// reminds, and its reminder is pending.
class World {
public:
    World(int events, Events kind) : events_(events) {
        orExit(queue_.setAuthorization(AuthorizationStatus::Authorized));
        shared.persistentContainer();
        EventContext context(store_);
        for (int number = 0; number < events; ++number) {
            auto record = recordOf(eventItem(number));
            if (kind == Events::HalfPast && number % 2 == 0) {
                record.dateEvent = "05 September 2029";
                record.eventType = false;
                record.repReminder = 1;
            }
            context.insert(std::move(record));
        }
        orExit(context.save());
        if (kind == Events::HalfPast)
            addReminders();
    }

    void pass() {
        fetch.refreshEvents();
        waitForCenter();
    }
    /// A pass that knows nothing of those before it: the main thread's share.
    void plainPass() {
        DeafNotificationCenter deaf;
        ReminderScheduler scheduler(deaf, calendar_, formatters_, line_, console_);
        FetchEventDataType(store_, shared, scheduler, formatters_, calendar_, line_, console_)
            .refreshEvents();
    }
    /// So that the next pass has to look at every row.
    void change() { shared.updateTitle(*eventItem(events_ - 1).id, "Changed"); }

    void removeReminders() {
        std::vector<std::string> identifiers;
        for (int number = 0; number < events_; number += 2)
            identifiers.push_back(eventItem(number).id->uuidString());
        center_.removePendingNotificationRequests(identifiers);
        waitForCenter();
    }

    /// Two scans and a parse a row.
    void floor() {
        scan(rows_);
        scan(rows_);
        const auto formatter = formatters_.make(fullFormat);
        for (int number = 0; number < events_; ++number)
            benchmark::DoNotOptimize(formatter->date("05 September 2031 6:30 PM"));
    }

private:
    void addReminders() {
        const auto file = folder_ / "queue.db";
        auto database = orExit(sqlite::Database::open(file, sqlite::queueSchema));
        auto insert = orExit(database.prepare(sqlite::insertRequest));
        auto transaction = orExit(sqlite::Transaction::begin(database));
        for (int number = 0; number < events_; number += 2) {
            sqlite::bindRequest(insert, {eventItem(number).id->uuidString(),
                                         {"Anniversary", "Think of the flowers", true},
                                         {{2030, 3, 20, 18, 30, 0}, false}});
            orExit(insert.run());
        }
        orExit(transaction.commit());
    }

    void waitForCenter() {
        for (int round = 0; round < 2; ++round) { // the second for what the completions of the first asked
            std::promise<void> done;
            center_.getNotificationSettings([&](AuthorizationStatus) { done.set_value(); });
            done.get_future().wait();
        }
    }

    const int events_;
    TemporaryFolder folder_;
    fakes::RecordingConsole console_;
    fakes::Timeline line_{instantAt(1'900'000'000)}; // March 2030
    IcuCalendar calendar_{"en_US", "Europe/Berlin"};
    GregorianCalendar queueCalendar_;
    IcuDateFormatters formatters_{"en_US", "Europe/Berlin"};
    sqlite::SqliteNotificationQueue queue_{folder_ / "queue.db", console_};
    sqlite::SqliteEventStore store_{folder_ / "events.db"};
    QueuedNotificationCenter center_{
        {queue_, calendar_, queueCalendar_, line_, line_}, std::make_unique<ThreadWorkQueue>(), {}, [] {}};

public:
    CoreDataStack shared{store_, console_};

private:
    ReminderScheduler scheduler_{center_, calendar_, formatters_, line_, console_};

public:
    FetchEventDataType fetch{store_, shared, scheduler_, formatters_, calendar_, line_, console_};

private:
    sqlite::Database database_ = orExit(sqlite::Database::open(folder_ / "events.db", sqlite::eventSchema));
    sqlite::Statement rows_ =
        orExit(database_.prepare("SELECT key, " + columns(", ", true) + " FROM events ORDER BY key"));
};

/// A minute like any other: nothing to roll.
void pass(benchmark::State& state, Events kind) {
    World world(static_cast<int>(state.range(0)), kind);
    Duel duel;
    for (auto _ : state) {
        duel.floor([&] { world.floor(); });
        duel.ours([&] { world.plainPass(); });
    }
    duel.report(state, static_cast<double>(state.range(0)));
}
BENCHMARK_CAPTURE(pass, ahead, Events::Ahead)
    ->Arg(100)
    ->Arg(1'000)
    ->Arg(10'000)
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(pass, halfOfThemPast, Events::HalfPast)
    ->Arg(100)
    ->Arg(1'000)
    ->Arg(10'000)
    ->Unit(benchmark::kMillisecond);

/// A hundred timers in the minute after an edit, against one pass after an edit; with `lists` each timer's
/// list fetches its rows, too.
void minute(benchmark::State& state, bool lists) {
    World world(static_cast<int>(state.range(0)), Events::HalfPast);
    const EventRows shown = world.shared.fetchEvents();
    const auto tick = [&] {
        if (lists)
            benchmark::DoNotOptimize(world.shared.fetchEvents().size());
    };
    Duel duel;
    for (auto _ : state) {
        world.change();
        duel.floor([&] {
            world.pass();
            tick();
        });
        world.change();
        duel.ours([&] {
            for (int timer = 0; timer < 100; ++timer) {
                world.pass();
                tick();
            }
        });
    }
    duel.report(state, static_cast<double>(state.range(0)));
}
BENCHMARK_CAPTURE(minute, passes, false)->Arg(10'000)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(minute, passesAndLists, true)->Arg(10'000)->Unit(benchmark::kMillisecond);

/// A pass that finds the reminders of 1,000 past events gone and adds them, each one durable.
void addReminders(benchmark::State& state) {
    World world(2'000, Events::HalfPast);
    for (auto _ : state) {
        state.PauseTiming();
        world.removeReminders();
        state.ResumeTiming();
        world.pass();
    }
    state.SetItemsProcessed(state.iterations() * 1'000);
}
BENCHMARK(addReminders)->Iterations(5)->Unit(benchmark::kMillisecond)->UseRealTime();

double heapMegabytes() {
    return static_cast<double>(mallinfo2().uordblks + mallinfo2().hblkhd) / 1e6;
}

/// The passes and the memory with that many events, half of them past.
void scale(benchmark::State& state) {
    World world(static_cast<int>(state.range(0)), Events::HalfPast);
    const double before = heapMegabytes();
    world.pass();
    const double remembered = heapMegabytes();
    EventRows shown = world.shared.fetchEvents();
    state.counters["listMB"] = heapMegabytes() - remembered;
    shown.clear();
    shown.shrink_to_fit();
    state.counters["passMB"] = remembered - before;
    state.counters["afterListMB"] = heapMegabytes() - remembered;
    Duel duel;
    for (auto _ : state) {
        world.change();
        duel.floor([&] { world.pass(); });
        duel.ours([&] { world.pass(); });
    }
    duel.report(state, 1); // "floor": over all rows; "ours": the next one
}
BENCHMARK(scale)->Arg(1'000)->Arg(10'000)->Arg(100'000)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace tessivo
