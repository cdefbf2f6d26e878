// The store against bare SQLite on the same file, in turns: the counter "ratio" is ours over the floor.

#include "Event/CoreDataStack.h"
#include "Event/EventItem.h"
#include "fakes/RecordingConsole.h"
#include "sqlite/Database.h"
#include "sqlite/EventColumns.h"
#include "sqlite/SqliteEventStore.h"
#include "tests/support/TemporaryFolder.h"

#include <benchmark/benchmark.h>

#include <chrono>
#include <cstdlib>
#include <iostream>

namespace tessivo {
namespace {

EventItem eventItem(int number) {
    EventItem item;
    item.title = "Anniversary number " + std::to_string(number);
    item.dateEvent = "05 September 2031";
    item.timeEvent = "6:30 PM";
    item.remMess = "Think of the flowers";
    item.unsplashPath = "https://images.example.org/photo-" + std::to_string(number);
    item.repEvent = 5;
    item.alertReminder = item.repReminder = item.color = item.gradient = NO_VALUE;
    item.timeFormat = 1;
    item.eventType = true;
    item.id.emplace();
    for (std::size_t index = 0; index < sizeof number; ++index)
        item.id->bytes[index] = static_cast<std::uint8_t>(number >> 8 * index);
    return item;
}

template <class Value>
Value orExit(Result<Value> result) {
    if (result)
        return std::move(result.value());
    std::cerr << result.error().description << '\n';
    std::exit(1);
}

void orExit(const Outcome& outcome) {
    if (outcome) {
        std::cerr << outcome->description << '\n';
        std::exit(1);
    }
}

std::string columns(const char* separator, bool names) {
    std::string list;
    for (const char* column : sqlite::eventColumns)
        list += std::string(list.empty() ? "" : separator) + (names ? column : "?");
    return list;
}

/// The least that reading all rows costs: every column of every row is read as what it is, nothing is kept.
void scan(sqlite::Statement& rows) {
    while (rows.step() == sqlite::Step::Row) {
        for (const int column : {0, 4, 5, 6, 8, 9, 10, 13})
            benchmark::DoNotOptimize(rows.integer(column));
        for (const int column : {1, 2, 3, 7, 11, 12})
            benchmark::DoNotOptimize(rows.text(column).data());
        benchmark::DoNotOptimize(rows.blob(14).data());
    }
    rows.reset();
}

/// Adds up the times of two rivals that take turns.
class Duel {
public:
    template <class Work>
    void ours(Work work) {
        ours_ += timeOf(work);
    }
    template <class Work>
    void floor(Work work) {
        floor_ += timeOf(work);
    }
    void report(benchmark::State& state, double perIteration) const {
        const auto count = static_cast<double>(state.iterations()) * perIteration;
        state.counters["ours_us_per_row"] = ours_ * 1e6 / count;
        state.counters["floor_us_per_row"] = floor_ * 1e6 / count;
        state.counters["ratio"] = ours_ / floor_;
    }

private:
    template <class Work>
    static double timeOf(Work& work) {
        const auto start = std::chrono::steady_clock::now();
        work();
        return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
    }

    double ours_ = 0;
    double floor_ = 0;
};

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
