// The store against bare SQLite on the same file, in turns: the counter "ratio" is ours over the floor.

#include "Event/CoreDataStack.h"
#include "bench/Duel.h"
#include "bench/EventRows.h"
#include "fakes/RecordingConsole.h"
#include "sqlite/SqliteEventStore.h"
#include "tests/support/TemporaryFolder.h"

#include <benchmark/benchmark.h>

namespace tessivo {
namespace {

/// The reading of one pass: a private stack made anew, and the shared stack, which knows its rows already.
void fetchPass(benchmark::State& state) {
    const TemporaryFolder folder;
    fakes::RecordingConsole console;
    sqlite::SqliteEventStore store(folder / "events.db");
    CoreDataStack shared(store, console);
    for (int number = 0; number < state.range(0); ++number)
        shared.addEvent(eventItem(number));
    auto database = orExit(sqlite::Database::open(folder / "events.db", sqlite::eventSchema));
    auto rows = orExit(database.prepare("SELECT key, " + columns(", ", true) + " FROM events ORDER BY key"));
    Duel duel;
    for (auto _ : state) {
        duel.floor([&] {
            scan(rows);
            scan(rows);
        });
        duel.ours([&] {
            CoreDataStack reader(store, console);
            benchmark::DoNotOptimize(reader.fetchEvents().size());
            benchmark::DoNotOptimize(shared.fetchEvents().size());
        });
    }
    duel.report(state, 2 * static_cast<double>(state.range(0)));
}
BENCHMARK(fetchPass)->Arg(100)->Arg(1'000)->Arg(10'000)->Unit(benchmark::kMillisecond);

/// One event a save, each on disk before the next begins.
void addEvents(benchmark::State& state) {
    const TemporaryFolder folder;
    fakes::RecordingConsole console;
    sqlite::SqliteEventStore store(folder / "ours.db");
    CoreDataStack stack(store, console);
    auto database = orExit(sqlite::Database::open(folder / "floor.db", sqlite::eventSchema));
    auto insert = orExit(database.prepare("INSERT INTO events(" + columns(", ", true) + ") VALUES(" +
                                          columns(", ", false) + ")"));
    Duel duel;
    int number = 0;
    for (auto _ : state) {
        const EventItem item = eventItem(++number);
        duel.floor([&] {
            insert.bindText(1, *item.title);
            insert.bindText(2, *item.dateEvent);
            insert.bindText(3, *item.timeEvent);
            insert.bindInteger(4, *item.repEvent);
            insert.bindInteger(5, *item.alertReminder);
            insert.bindInteger(6, *item.repReminder);
            insert.bindText(7, *item.remMess);
            insert.bindInteger(8, *item.timeFormat);
            insert.bindInteger(9, *item.color);
            insert.bindInteger(10, *item.gradient);
            insert.bindText(12, *item.unsplashPath);
            insert.bindInteger(13, 1);
            insert.bindBlob(14, item.id->bytes);
            orExit(insert.run());
        });
        duel.ours([&] { stack.addEvent(item); });
    }
    duel.report(state, 1);
}
BENCHMARK(addEvents)->Iterations(2'000)->Unit(benchmark::kMicrosecond);

} // namespace
} // namespace tessivo
