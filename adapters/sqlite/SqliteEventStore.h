#pragma once

#include "Ports/EventStore.h"

#include <filesystem>
#include <functional>
#include <memory>
#include <string>

namespace tessivo::sqlite {

/// The events in a database file of their own. See `Database::open` for what is refused at the load, and how
/// it is left.
class SqliteEventStore final : public EventStore {
public:
    /// The locale, an ICU name, in which the program writes dates at that moment. It is noted with every date
    /// that is saved, so that one which can no longer be parsed can be rewritten.
    using DateLocale = std::function<std::string()>;

    explicit SqliteEventStore(std::filesystem::path file, DateLocale dateLocale = {});
    ~SqliteEventStore() override;

    std::optional<LoadFailure> load() override;
    Outcome fetch(const std::optional<Uuid>& id, EventRowReceiver& rows) override;
    std::optional<StoreState> state() override;
    Outcome save(std::span<EventChange> changes) override;

private:
    class OpenFile;

    [[nodiscard]] LoadFailure failure(const Error& error) const;

    std::filesystem::path file_;
    DateLocale dateLocale_;          ///< empty: nothing is noted
    std::unique_ptr<OpenFile> open_; ///< none until the store is loaded
};

} // namespace tessivo::sqlite
