#pragma once

#include "Event/EventCoreData.h"
#include "Ports/EventStore.h"

#include <functional>
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
/// The context keeps alive the objects with unsaved changes only; a row that nobody holds costs nothing.
///
/// Main thread only. The store must outlive the context; objects may outlive both.
class EventContext final {
public:
    explicit EventContext(EventStore& store) : store_(store) {}
    EventContext(const EventContext&) = delete;
    EventContext& operator=(const EventContext&) = delete;
    ~EventContext();

    /// The rows that match the predicate, or all: first those of the store in its order, then unsaved
    /// inserts. A predicate is the text `id = "<UUID>"`; another text is an error.
    [[nodiscard]] Result<EventRows> fetch(std::optional<std::string_view> predicate = std::nullopt);

    /// Calls `visit` with the values of each row that `fetch` would give, in that order, and makes no
    /// objects. On an error it has been called for some of them.
    [[nodiscard]] Outcome visit(const std::function<void(const EventRecord&)>& visit);

    [[nodiscard]] bool hasChanges() const {
        return !inserted_.empty() || !changed_.empty() || !deleted_.empty();
    }

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
    class Visit;

    struct Known {
        RowKey key;
        EventCoreData* object; ///< null when it has gone
    };

    [[nodiscard]] Result<EventRows> fetchAll();
    [[nodiscard]] std::optional<EventRows> unchangedRows();
    [[nodiscard]] Result<EventRows> fetchSome(const Uuid& id);
    /// Called by an object before its first unsaved change.
    void willChange(EventCoreData& event);
    /// Called by an object that goes.
    void forget(const EventCoreData& event);
    [[nodiscard]] std::shared_ptr<EventCoreData> make(RowKey key);
    [[nodiscard]] std::vector<Known>::iterator position(RowKey key);
    void settle(const std::vector<EventChange>& changes);
    static void release(EventCoreData& event);

    EventStore& store_;
    std::vector<Known> rows_; ///< all objects that have a row, by rising key
    EventRows inserted_;
    EventRows deleted_; ///< still in rows_ too
    EventRows changed_; ///< all of them in rows_
    /// Of the store when all rows were fetched last.
    std::optional<StoreState> fetched_;
};

} // namespace tessivo
