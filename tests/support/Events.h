#pragma once

#include "Event/EventItem.h"
#include "Ports/EventStore.h"

#include <map>

namespace tessivo {

/// The rows of a fetch by their keys.
class CollectedRows final : public EventRowReceiver {
public:
    EventRecord* receive(RowKey key) override { return &rows[key]; }

    std::map<RowKey, EventRecord> rows;
};

/// A draft as the wizard leaves it: ahead, on a whole day, on the first colour, without a reminder.
inline EventItem plainEvent(std::string title = "", std::string day = "25 June 2030",
                            std::optional<Uuid> id = std::nullopt) {
    EventItem item;
    item.title = std::move(title);
    item.dateEvent = std::move(day);
    item.repEvent = item.timeFormat = item.color = 0;
    item.alertReminder = item.repReminder = item.gradient = NO_VALUE;
    item.remMess = "";
    item.eventType = true;
    item.id = id;
    return item;
}

/// A record in which every attribute has a value of its own.
inline EventRecord fullRecord() {
    return {.title = "Birthday",
            .dateEvent = "05 March 2031",
            .timeEvent = "6:30 PM",
            .repEvent = 5,
            .alertReminder = 3,
            .repReminder = 4,
            .remMess = "Bring a cake",
            .timeFormat = 2,
            .color = 11,
            .gradient = 12,
            .photoPath = "file:///pictures/cake.jpg",
            .unsplashPath = "https://images.example/cake",
            .eventType = true,
            .id = Uuid::fromString("0F0E0D0C-0B0A-0908-0706-050403020100")};
}

/// What lies ahead on 25 June 2030: counted in days, of one colour, with a reminder.
inline EventRecord summerRecord() {
    return {.title = "Summer",
            .dateEvent = "25 June 2030",
            .timeEvent = "6:30 PM",
            .repEvent = 0,
            .alertReminder = 2,
            .repReminder = 0,
            .remMess = "Pack",
            .timeFormat = 1,
            .color = 4,
            .gradient = NO_VALUE,
            .photoPath = {},
            .unsplashPath = {},
            .eventType = true,
            .id = Uuid::fromString("0F0E0D0C-0B0A-0908-0706-050403020100")};
}

} // namespace tessivo
