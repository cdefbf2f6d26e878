#pragma once

#include "Event/EventContext.h"
#include "Event/EventItem.h"
#include "sqlite/SqliteEventStore.h"

#include <cstdlib>
#include <string>

namespace tessivo {

/// Fills a folder of the program's with past events: the list that opens first.
inline void fillFolder(const std::string& folder, int events) {
    sqlite::SqliteEventStore store(folder + "/events.sqlite");
    EventContext context(store);
    if (store.load())
        std::exit(EXIT_FAILURE);
    for (int number = 0; number < events; ++number) {
        EventRecord record;
        record.title = "Anniversary number " + std::to_string(number);
        record.dateEvent = "05 September 2015";
        record.timeEvent = "6:30 PM";
        record.repEvent = record.alertReminder = record.repReminder = record.gradient = NO_VALUE;
        record.color = static_cast<std::int16_t>(number % 30);
        record.timeFormat = 1;
        record.eventType = false;
        record.id.emplace();
        for (std::size_t index = 0; index < sizeof number; ++index)
            record.id->bytes[index] = static_cast<std::uint8_t>(number >> 8 * index);
        context.insert(std::move(record));
    }
    if (context.save())
        std::exit(EXIT_FAILURE);
}

} // namespace tessivo
