#pragma once

#include "Ports/EventStore.h"

#include <map>

namespace tessivo {

/// The rows of a fetch by their keys.
class CollectedRows final : public EventRowReceiver {
public:
    EventRecord* receive(RowKey key) override { return &rows[key]; }

    std::map<RowKey, EventRecord> rows;
};

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

} // namespace tessivo
