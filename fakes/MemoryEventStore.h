#pragma once

#include "Ports/EventStore.h"

#include <map>
#include <optional>

namespace tessivo::fakes {

/// An event store in memory that can be made to fail.
class MemoryEventStore final : public EventStore {
public:
    std::optional<LoadFailure> load() override;
    Outcome fetch(const std::optional<Uuid>& id, EventRowReceiver& rows) override;
    std::optional<StoreState> state() override;
    Outcome save(std::span<EventChange> changes) override;

    /// The next call of that kind fails with this and does nothing; later ones succeed again.
    void failNextLoad(LoadFailure failure) { loadFailure_ = std::move(failure); }
    void failNextFetch(Error error) { fetchError_ = std::move(error); }
    void failNextSave(Error error) { saveError_ = std::move(error); }

    [[nodiscard]] int loads() const { return loads_; }
    [[nodiscard]] int saves() const { return saves_; }
    [[nodiscard]] int fetches() const { return fetches_; }

    /// The rows as another program would see them on disk.
    [[nodiscard]] const std::map<RowKey, EventRecord>& rows() const { return rows_; }

private:
    std::map<RowKey, EventRecord> rows_;
    RowKey lastKey_ = 0;
    bool loaded_ = false;
    int loads_ = 0; ///< attempts, failed ones too
    int saves_ = 0; ///< successful ones
    int fetches_ = 0;
    std::optional<LoadFailure> loadFailure_;
    Outcome fetchError_;
    Outcome saveError_;
};

} // namespace tessivo::fakes
