#include "fakes/MemoryEventStore.h"

#include <utility>

namespace tessivo::fakes {
namespace {

Error notLoaded() {
    return {"MemoryEventStore", 1, "the store is not loaded"};
}

/// Only the attributes named, so that a change is never written together with a neighbour's old value.
void assign(EventRecord& row, const EventRecord& values, const EventAttributes& attributes) {
    const auto copy = [&](EventAttribute attribute, auto field) {
        if (attributes.test(static_cast<std::size_t>(attribute)))
            row.*field = values.*field;
    };
    copy(EventAttribute::title, &EventRecord::title);
    copy(EventAttribute::dateEvent, &EventRecord::dateEvent);
    copy(EventAttribute::timeEvent, &EventRecord::timeEvent);
    copy(EventAttribute::repEvent, &EventRecord::repEvent);
    copy(EventAttribute::alertReminder, &EventRecord::alertReminder);
    copy(EventAttribute::repReminder, &EventRecord::repReminder);
    copy(EventAttribute::remMess, &EventRecord::remMess);
    copy(EventAttribute::timeFormat, &EventRecord::timeFormat);
    copy(EventAttribute::color, &EventRecord::color);
    copy(EventAttribute::gradient, &EventRecord::gradient);
    copy(EventAttribute::photoPath, &EventRecord::photoPath);
    copy(EventAttribute::unsplashPath, &EventRecord::unsplashPath);
    copy(EventAttribute::eventType, &EventRecord::eventType);
    copy(EventAttribute::id, &EventRecord::id);
}

} // namespace

std::optional<LoadFailure> MemoryEventStore::load() {
    ++loads_;
    if (loadFailure_)
        return std::exchange(loadFailure_, std::nullopt);
    loaded_ = true;
    return std::nullopt;
}

Outcome MemoryEventStore::fetch(const std::optional<Uuid>& id, EventRowReceiver& rows) {
    ++fetches_;
    if (!loaded_)
        return notLoaded();
    if (fetchError_)
        return std::exchange(fetchError_, std::nullopt);
    for (const auto& [key, values] : rows_) {
        if (id && values.id != id)
            continue;
        if (EventRecord* record = rows.receive(key))
            *record = values;
    }
    return std::nullopt;
}

std::optional<StoreState> MemoryEventStore::state() {
    return loaded_ ? std::optional(StoreState{saves_, 0}) : std::nullopt;
}

Outcome MemoryEventStore::save(std::span<EventChange> changes) {
    if (!loaded_)
        return notLoaded();
    if (saveError_)
        return std::exchange(saveError_, std::nullopt);
    for (EventChange& change : changes) {
        switch (change.kind) {
        case EventChange::Kind::Insert:
            change.key = ++lastKey_;
            rows_.emplace(change.key, *change.values);
            break;
        case EventChange::Kind::Update:
            if (const auto row = rows_.find(change.key); row != rows_.end())
                assign(row->second, *change.values, change.attributes);
            break;
        case EventChange::Kind::Delete:
            rows_.erase(change.key);
            break;
        }
    }
    ++saves_;
    return std::nullopt;
}

} // namespace tessivo::fakes
