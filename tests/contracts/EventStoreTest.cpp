#include "Ports/EventStore.h"

#include "fakes/MemoryEventStore.h"
#include "sqlite/SqliteEventStore.h"
#include "support/Events.h"
#include "support/TemporaryFolder.h"

#include <gmock/gmock.h>

#include <functional>
#include <limits>
#include <memory>
#include <ostream>
#include <set>
#include <utility>
#include <vector>

namespace tessivo {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;
using testing::SizeIs;

struct Implementation {
    const char* name;
    std::function<std::unique_ptr<EventStore>(const std::filesystem::path&)> make;
};

void PrintTo(const Implementation& implementation, std::ostream* stream) {
    *stream << implementation.name;
}

const Implementation implementations[] = {
    {"Memory", [](const auto&) { return std::make_unique<fakes::MemoryEventStore>(); }},
    {"Sqlite", [](const auto& file) { return std::make_unique<sqlite::SqliteEventStore>(file); }},
};

class EventStoreContract : public testing::TestWithParam<Implementation> {
protected:
    void SetUp() override { ASSERT_FALSE(store->load()); }

    Outcome save(EventChange change) {
        std::vector<EventChange> changes{change};
        auto outcome = store->save(changes);
        saved = changes.front().key;
        return outcome;
    }

    RowKey insert(const EventRecord& record) {
        EXPECT_EQ(save({EventChange::Kind::Insert, 0, &record, {}}), std::nullopt);
        return saved;
    }

    Outcome update(RowKey key, const EventRecord& record, std::initializer_list<EventAttribute> attributes) {
        EventAttributes set;
        for (const auto attribute : attributes)
            set.set(static_cast<std::size_t>(attribute));
        return save({EventChange::Kind::Update, key, &record, set});
    }

    Outcome remove(RowKey key) { return save({EventChange::Kind::Delete, key, nullptr, {}}); }

    std::map<RowKey, EventRecord> rows(const std::optional<Uuid>& id = std::nullopt) {
        CollectedRows collected;
        EXPECT_EQ(store->fetch(id, collected), std::nullopt);
        return collected.rows;
    }

    TemporaryFolder folder;
    std::unique_ptr<EventStore> store = GetParam().make(folder / "events.db");
    RowKey saved = 0;
};

TEST_P(EventStoreContract, EveryValueComesBackAsItWasSaved) {
    constexpr auto smallest = std::numeric_limits<std::int16_t>::min();
    constexpr auto largest = std::numeric_limits<std::int16_t>::max();
    EventRecord extremes = fullRecord();
    extremes.title = std::string(3'000'000, 'x');
    extremes.dateEvent = "";
    extremes.remMess = std::string("a\0b", 3);
    extremes.photoPath = "\xF0\x9F\x8E\x82 \xFF'\"%";
    extremes.repEvent = smallest;
    extremes.timeFormat = largest;
    extremes.color = 9999;
    extremes.eventType = false;
    const RowKey plain = insert(EventRecord{});
    const RowKey full = insert(fullRecord());
    const RowKey extreme = insert(extremes);
    EXPECT_THAT(rows(),
                ElementsAre(Pair(plain, EventRecord{}), Pair(full, fullRecord()), Pair(extreme, extremes)));
}

TEST_P(EventStoreContract, ARefreshedRecordTakesOnEveryValueOfItsRow) {
    insert(EventRecord{});
    CollectedRows collected;
    collected.rows[saved] = fullRecord();
    ASSERT_EQ(store->fetch(std::nullopt, collected), std::nullopt);
    EXPECT_EQ(collected.rows.at(saved), EventRecord{});
}

TEST_P(EventStoreContract, KeysRiseAndAreNeverGivenTwice) {
    const RowKey first = insert(fullRecord());
    const RowKey second = insert(fullRecord());
    ASSERT_EQ(remove(second), std::nullopt);
    const RowKey third = insert(fullRecord());
    EXPECT_LT(0, first);
    EXPECT_LT(first, second);
    EXPECT_LT(second, third);
}

TEST_P(EventStoreContract, AnUpdateWritesTheNamedAttributesOnly) {
    const EventRecord before = fullRecord();
    const RowKey key = insert(before);
    const EventRecord blank;
    EventRecord after = before;
    ASSERT_EQ(update(key, blank, {EventAttribute::timeEvent, EventAttribute::color}), std::nullopt);
    after.timeEvent.reset();
    after.color = 0;
    EXPECT_THAT(rows(), ElementsAre(Pair(key, after)));

    for (std::size_t index = 0; index < eventAttributeCount; ++index)
        ASSERT_EQ(update(key, blank, {static_cast<EventAttribute>(index)}), std::nullopt);
    EXPECT_THAT(rows(), ElementsAre(Pair(key, blank)));
}

TEST_P(EventStoreContract, ARowThatIsGoneIsNeitherUpdatedNorDeletedNorMissed) {
    const RowKey key = insert(fullRecord());
    ASSERT_EQ(remove(key), std::nullopt);
    EXPECT_EQ(update(key, fullRecord(), {EventAttribute::title}), std::nullopt);
    EXPECT_EQ(remove(key), std::nullopt);
    EXPECT_THAT(rows(), IsEmpty());
}

TEST_P(EventStoreContract, ASaveOfSeveralChangesKeepsTheirOrder) {
    const EventRecord full = fullRecord();
    const EventRecord blank;
    const RowKey doomed = insert(full);
    std::vector<EventChange> changes{{EventChange::Kind::Insert, 0, &full, {}},
                                     {EventChange::Kind::Delete, doomed, nullptr, {}},
                                     {EventChange::Kind::Insert, 0, &blank, {}}};
    ASSERT_EQ(store->save(changes), std::nullopt);
    EXPECT_THAT(rows(), ElementsAre(Pair(changes[0].key, full), Pair(changes[2].key, blank)));
}

TEST_P(EventStoreContract, AnIdentityPicksItsRowsInTheirOrder) {
    EventRecord other = fullRecord();
    other.id = Uuid{};
    const RowKey first = insert(fullRecord());
    const RowKey second = insert(other);
    const RowKey third = insert(fullRecord());
    insert(EventRecord{});
    EXPECT_THAT(rows(fullRecord().id), ElementsAre(Pair(first, fullRecord()), Pair(third, fullRecord())));
    EXPECT_THAT(rows(Uuid{}), ElementsAre(Pair(second, other)));
    EXPECT_THAT(rows(Uuid::fromString("00000000-0000-0000-0000-000000000001")), IsEmpty());
}

TEST_P(EventStoreContract, ItsStateChangesWithEverySaveAndWithNothingElse) {
    std::set<std::pair<std::int64_t, std::int64_t>> states;
    const auto note = [&] {
        const auto state = store->state();
        ASSERT_TRUE(state);
        states.emplace(state->saves, state->foreign);
    };
    note();
    const RowKey key = insert(fullRecord());
    note();
    EXPECT_THAT(rows(), SizeIs(1));
    note();
    ASSERT_EQ(update(key, EventRecord{}, {EventAttribute::title}), std::nullopt);
    note();
    ASSERT_EQ(remove(key), std::nullopt);
    note();
    EXPECT_EQ(states.size(), 4U);
}

TEST_P(EventStoreContract, ARowThatIsNotWantedIsPassedOver) {
    class Picky final : public EventRowReceiver {
    public:
        EventRecord* receive(RowKey key) override {
            keys.push_back(key);
            return keys.size() == 1 ? nullptr : &last;
        }
        std::vector<RowKey> keys;
        EventRecord last;
    } picky;
    const RowKey first = insert(EventRecord{});
    const RowKey second = insert(fullRecord());
    ASSERT_EQ(store->fetch(std::nullopt, picky), std::nullopt);
    EXPECT_THAT(picky.keys, ElementsAre(first, second));
    EXPECT_EQ(picky.last, fullRecord());
}

TEST_P(EventStoreContract, LoadingAgainLosesNothing) {
    insert(fullRecord());
    EXPECT_FALSE(store->load());
    EXPECT_THAT(rows(), SizeIs(1));
}

TEST_P(EventStoreContract, AStoreThatIsNotLoadedFails) {
    const auto unloaded = GetParam().make(folder / "unloaded.db");
    const EventRecord record;
    std::vector<EventChange> changes{{EventChange::Kind::Insert, 0, &record, {}}};
    CollectedRows collected;
    EXPECT_TRUE(unloaded->fetch(std::nullopt, collected));
    EXPECT_TRUE(unloaded->save(changes));
    ASSERT_FALSE(unloaded->load());
    ASSERT_EQ(unloaded->fetch(std::nullopt, collected), std::nullopt);
    EXPECT_THAT(collected.rows, IsEmpty());
}

INSTANTIATE_TEST_SUITE_P(Stores, EventStoreContract, testing::ValuesIn(implementations),
                         [](const auto& test) { return test.param.name; });

} // namespace
} // namespace tessivo
