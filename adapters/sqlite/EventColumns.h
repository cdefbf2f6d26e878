#pragma once

#include "Ports/EventStore.h"
#include "sqlite/Database.h"

#include <array>

namespace tessivo::sqlite {

/// The columns of the table "events" behind its key, in the order of `EventAttribute`.
inline constexpr std::array<const char*, eventAttributeCount> eventColumns{
    "title",      "dateEvent", "timeEvent", "repEvent",  "alertReminder", "repReminder", "remMess",
    "timeFormat", "color",     "gradient",  "photoPath", "unsplashPath",  "eventType",   "id"};

extern const Schema eventSchema;

/// Binds one attribute.
void bindAttribute(Statement& statement, int parameter, EventAttribute attribute, const EventRecord& values);

/// Reads a row whose attributes begin at `firstColumn`; leaves alone what `record` holds already.
void readAttributes(const Statement& row, int firstColumn, EventRecord& record);

} // namespace tessivo::sqlite
