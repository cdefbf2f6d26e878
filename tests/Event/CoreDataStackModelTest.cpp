#include "Event/CoreDataStack.h"

#include "fakes/RecordingConsole.h"
#include "sqlite/SqliteEventStore.h"
#include "support/Events.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <algorithm>
#include <tuple>
#include <utility>

namespace tessivo {
namespace {

/// A store on disk whose saves can be told to fail.
class FaultyStore final : public EventStore {
public:
    explicit FaultyStore(EventStore& store) : store_(store) {}

    std::optional<LoadFailure> load() override { return store_.load(); }
    Outcome fetch(const std::optional<Uuid>& id, EventRowReceiver& rows) override {
        return store_.fetch(id, rows);
    }
    std::optional<StoreState> state() override { return store_.state(); }
    Outcome save(std::span<EventChange> changes) override {
        return broken ? Outcome(Error{"Disk", 28, "no space left"}) : store_.save(changes);
    }

    bool broken = false;

private:
    EventStore& store_;
};

enum class Act { Add, Update, Write, Delete };

using Row = std::pair<Uuid, std::string>; ///< id and title
using Rows = std::vector<Row>;

Rows rowsOf(CoreDataStack& stack) {
    Rows rows;
    for (const auto& event : stack.fetchEvents())
        rows.emplace_back(*event->id(), *event->title());
    return rows;
}

/// The shared stack shows `seen`; every other stack, and the next run of the program, what was last saved.
class Model {
public:
    void act(Act act, const Uuid& id, const std::string& title, bool saves) {
        const auto first = std::ranges::find(seen, id, &Row::first);
        if (act == Act::Add)
            seen.emplace_back(id, title);
        else if (first == seen.end())
            return;
        else if (act == Act::Delete)
            seen.erase(first);
        else
            first->second = title;
        if (saves && act != Act::Write)
            saved = seen;
    }

    Rows seen;
    Rows saved;
};

void perform(CoreDataStack& stack, Act act, const Uuid& id, const std::string& title) {
    switch (act) {
    case Act::Add:
        return stack.addEvent(plainEvent(title, "25 June 2030", id));
    case Act::Update:
        return stack.updateTitle(id, title);
    case Act::Write: {
        const auto rows = stack.fetchEvents();
        const auto first = std::ranges::find(rows, id, [](const auto& event) { return *event->id(); });
        if (first != rows.end())
            (*first)->setTitle(title);
        return;
    }
    case Act::Delete:
        return stack.deleteEvent(id);
    }
}

RC_GTEST_PROP(CoreDataStackModel, AnyRunOfActsAndFailuresShowsWhatTheModelShows, ()) {
    using Line = std::tuple<Act, std::uint8_t, std::string, bool>;
    const auto lines = *rc::gen::container<std::vector<Line>>(
        rc::gen::tuple(rc::gen::element(Act::Add, Act::Update, Act::Write, Act::Delete),
                       rc::gen::inRange<std::uint8_t>(0, 4), rc::gen::arbitrary<std::string>(),
                       rc::gen::weightedElement<bool>({{3, true}, {1, false}})));
    const TemporaryFolder folder;
    fakes::RecordingConsole console;
    sqlite::SqliteEventStore disk(folder / "events.db");
    FaultyStore store(disk);
    CoreDataStack shared(store, console);
    CoreDataStack reader(store, console);
    Model model;
    for (const auto& [act, number, title, saves] : lines) {
        Uuid id;
        id.bytes[0] = number;
        store.broken = !saves;
        perform(shared, act, id, title);
        model.act(act, id, title, saves);
        RC_ASSERT(rowsOf(shared) == model.seen);
        RC_ASSERT(rowsOf(reader) == model.saved);
    }
    sqlite::SqliteEventStore reopened(folder / "events.db");
    CoreDataStack next(reopened, console);
    RC_ASSERT(rowsOf(next) == model.saved);
}

} // namespace
} // namespace tessivo
