#include "Event/EventItem.h"

namespace tessivo {

EventRecord recordOf(const EventItem& item) {
    return {.title = item.title,
            .dateEvent = item.dateEvent,
            .timeEvent = item.timeEvent,
            .repEvent = item.repEvent.value_or(0),
            .alertReminder = item.alertReminder.value_or(NO_VALUE),
            .repReminder = item.repReminder.value_or(NO_VALUE),
            .remMess = item.remMess,
            .timeFormat = item.timeFormat.value_or(0),
            .color = item.color.value_or(NO_VALUE),
            .gradient = item.gradient.value_or(NO_VALUE),
            .photoPath = item.photoPath,
            .unsplashPath = item.unsplashPath,
            .eventType = item.eventType.value_or(false),
            .id = item.id};
}

} // namespace tessivo
