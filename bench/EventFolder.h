#pragma once

#include "Event/EventContext.h"
#include "Event/EventItem.h"
#include "Support/SettingKeys.h"
#include "sqlite/SqliteEventStore.h"
#include "sqlite/SqliteSavedSettings.h"
#include "standard/StandardConsole.h"

#include <cstdlib>
#include <string>

namespace tessivo {

/// Leaves a folder as a program does that has been closed before: the tour of the first run is over, the
/// rating prompt has had its turn. Its events are past, and so in the list that opens first.
inline void fillFolder(const std::string& folder, int events) {
    StandardConsole console;
    sqlite::SqliteSavedSettings settings(folder + "/settings.sqlite", console);
    settings.setBoolean(settingKeys::isFirstLaunch, true);
    settings.setInteger(settingKeys::defaultScreen, 0);
    settings.setInteger(settingKeys::eventSize, 1);
    settings.setInteger(settingKeys::secondOpen, 3);
    settings.setText(settingKeys::adsShow, "2");
    settings.setText(settingKeys::rateUs, "0");
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
