#pragma once

#include "Event/EventItem.h"
#include "Ports/Error.h"
#include "sqlite/Database.h"
#include "sqlite/EventColumns.h"

#include <benchmark/benchmark.h>

#include <cstdlib>
#include <iostream>
#include <string>
#include <utility>

namespace tessivo {

inline EventItem eventItem(int number) {
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

inline void orExit(const Outcome& outcome) {
    if (outcome) {
        std::cerr << outcome->description << '\n';
        std::exit(1);
    }
}

inline std::string columns(const char* separator, bool names) {
    std::string list;
    for (const char* column : sqlite::eventColumns)
        list += std::string(list.empty() ? "" : separator) + (names ? column : "?");
    return list;
}

/// The least that reading all rows costs: every column of every row is read as what it is, nothing is kept.
inline void scan(sqlite::Statement& rows) {
    while (rows.step() == sqlite::Step::Row) {
        for (const int column : {0, 4, 5, 6, 8, 9, 10, 13})
            benchmark::DoNotOptimize(rows.integer(column));
        for (const int column : {1, 2, 3, 7, 11, 12})
            benchmark::DoNotOptimize(rows.text(column).data());
        benchmark::DoNotOptimize(rows.blob(14).data());
    }
    rows.reset();
}

} // namespace tessivo
