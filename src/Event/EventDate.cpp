#include "Event/EventDate.h"

namespace tessivo {

std::optional<Instant> eventDateOf(const std::optional<std::string>& dateEvent,
                                   const std::optional<std::string>& timeEvent,
                                   const DateFormatter& fullFormatter, const DateFormatter& dateFormatter) {
    if (!dateEvent)
        return std::nullopt;
    if (!timeEvent || timeEvent->empty())
        return dateFormatter.date(*dateEvent);
    return fullFormatter.date(*dateEvent + ' ' + *timeEvent);
}

} // namespace tessivo
