#pragma once

#include "Ports/EventStore.h"

#include <filesystem>
#include <memory>

namespace tessivo::sqlite {

/// The events in a database file of their own. See `Database::open` for what is refused at the load, and how
/// it is left.
class SqliteEventStore final : public EventStore {
public:
    explicit SqliteEventStore(std::filesystem::path file);
    ~SqliteEventStore() override;

    std::optional<LoadFailure> load() override;
    Outcome fetch(std::optional<std::string_view> predicate, EventRowReceiver& rows) override;
    Outcome save(std::span<EventChange> changes) override;

private:
    class OpenFile;

    std::filesystem::path file_;
    std::unique_ptr<OpenFile> open_; ///< none until the store is loaded
};

} // namespace tessivo::sqlite
