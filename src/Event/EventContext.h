#pragma once

#include "Event/EventCoreData.h"
#include "Ports/EventStore.h"

#include <memory>
#include <optional>
#include <string_view>
#include <vector>

namespace tessivo {

using EventRows = std::vector<std::shared_ptr<EventCoreData>>;

/// A place where stored events are read and changed before they are saved: an identity map over the store.
///
/// A row is one object, however often it is fetched. A fetch refreshes each object that has no unsaved
/// changes with what is in the store, whoever saved it; one with unsaved changes stands as it is until a save
/// of this context. Inserts and deletes that are not saved yet show in this context's fetches and in no
/// other's. What a failed save could not write stays unsaved and goes with the next save.
///
/// Main thread only. The store must outlive the context; objects may outlive both.
class EventContext final {
public:
    explicit EventContext(EventStore& store) : store_(store) {}
    EventContext(const EventContext&) = delete;
    EventContext& operator=(const EventContext&) = delete;
    ~EventContext();

    /// The rows that match the predicate, or all: first those of the store in its order, then unsaved
    /// inserts.
    [[nodiscard]] Result<EventRows> fetch(std::optional<std::string_view> predicate = std::nullopt);

    /// A new row with these values.
    std::shared_ptr<EventCoreData> insert(EventRecord values);

    /// Marks the row of `event`, an object of this context, for deletion.
    void deleteObject(EventCoreData& event);

    /// Writes all unsaved changes, or on failure none.
    [[nodiscard]] Outcome save();

private:
    friend class EventCoreData;
    class Refresh;
    class WholeRefresh;
    class PartRefresh;

    [[nodiscard]] Result<EventRows> fetchSome(std::string_view predicate);
    /// Called by an object before its first unsaved change.
    void willChange(EventCoreData& event);
    [[nodiscard]] std::shared_ptr<EventCoreData> make(RowKey key);
    [[nodiscard]] EventRows::iterator position(RowKey key);
    void settle(const std::vector<EventChange>& changes);
    static void release(EventCoreData& event);

    EventStore& store_;
    EventRows rows_; ///< all objects that have a row, by rising key
    EventRows inserted_;
    EventRows deleted_;                   ///< still in rows_ too
    std::vector<EventCoreData*> changed_; ///< all of them in rows_
};

} // namespace tessivo
