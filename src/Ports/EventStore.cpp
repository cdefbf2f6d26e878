#include "Ports/EventStore.h"

namespace tessivo {

std::optional<Uuid> idOfPredicate(std::string_view predicate) {
    constexpr std::string_view prefix = "id = \"";
    constexpr std::string_view suffix = "\"";
    if (!predicate.starts_with(prefix) || predicate.size() <= prefix.size() || !predicate.ends_with(suffix))
        return std::nullopt;
    predicate.remove_prefix(prefix.size());
    predicate.remove_suffix(suffix.size());
    return Uuid::fromString(predicate);
}

} // namespace tessivo
