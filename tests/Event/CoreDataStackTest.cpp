#include "Event/CoreDataStack.h"

#include "Event/DataChangeDelegate.h"
#include "Event/EventItem.h"
#include "Event/PersistentContainer.h"
#include "fakes/MemoryEventStore.h"
#include "fakes/RecordingConsole.h"
#include "sqlite/SqliteEventStore.h"
#include "support/Events.h"
#include "support/TemporaryFolder.h"

#include <gmock/gmock.h>

#include <functional>

namespace tessivo {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::Optional;
using testing::SizeIs;

const Uuid identity = *Uuid::fromString("9A0B1C2D-3E4F-5061-7283-94A5B6C7D8E9");
const Uuid stranger = *Uuid::fromString("00000000-0000-0000-0000-00000000ABCD");

EventItem draft(const std::string& title, std::optional<Uuid> id = identity) {
    EventItem item = plainEvent(title, "05 March 2031", id);
    item.timeEvent = "6:30 PM";
    item.repEvent = 1;
    item.alertReminder = 2;
    item.repReminder = 3;
    item.remMess = "Bring a cake";
    item.timeFormat = 4;
    item.photoPath = "file:///cake.jpg";
    item.unsplashPath = "https://images.example/cake";
    return item;
}

std::vector<std::string> titles(const EventRows& rows) {
    std::vector<std::string> texts;
    for (const auto& row : rows)
        texts.push_back(row->title().value_or("(none)"));
    return texts;
}

class Listener final : public DataChangeDelegate {
public:
    void dataDidChange() override { ++heard; }
    int heard = 0;
};

/// A shared stack with a listener, and a private one, over one store on disk.
class CoreDataStackTest : public testing::Test {
protected:
    CoreDataStackTest() { shared.delegate = listener; }

    TemporaryFolder folder;
    fakes::RecordingConsole console;
    sqlite::SqliteEventStore store{folder / "events.db"};
    CoreDataStack shared{store, console};
    CoreDataStack reader{store, console};
    std::shared_ptr<Listener> listener = std::make_shared<Listener>();
};

TEST_F(CoreDataStackTest, TheStoreIsOpenedAtTheFirstOperationOnly) {
    EXPECT_FALSE(exists(folder / "events.db"));
    EXPECT_THAT(shared.fetchEvents(), IsEmpty());
    EXPECT_TRUE(exists(folder / "events.db"));
    EXPECT_EQ(shared.persistentContainer().name(), "Tessivo");
    EXPECT_EQ(&shared.viewContext(), &shared.persistentContainer().viewContext());
}

TEST_F(CoreDataStackTest, AnAddedEventHasEveryAttributeOfItsDraft) {
    shared.addEvent(draft("Birthday"));
    const auto event = reader.fetchEvent(identity);
    EXPECT_THAT(event->title(), Optional(std::string("Birthday")));
    EXPECT_THAT(event->dateEvent(), Optional(std::string("05 March 2031")));
    EXPECT_THAT(event->timeEvent(), Optional(std::string("6:30 PM")));
    EXPECT_EQ(event->repEvent(), 1);
    EXPECT_EQ(event->alertReminder(), 2);
    EXPECT_EQ(event->repReminder(), 3);
    EXPECT_THAT(event->remMess(), Optional(std::string("Bring a cake")));
    EXPECT_EQ(event->timeFormat(), 4);
    EXPECT_EQ(event->color(), 0);
    EXPECT_EQ(event->gradient(), NO_VALUE);
    EXPECT_THAT(event->photoPath(), Optional(std::string("file:///cake.jpg")));
    EXPECT_THAT(event->unsplashPath(), Optional(std::string("https://images.example/cake")));
    EXPECT_TRUE(event->eventType());
    EXPECT_THAT(event->id(), Optional(identity));
    EXPECT_EQ(listener->heard, 1);
}

TEST_F(CoreDataStackTest, WhatADraftMayLackIsStoredAsAbsent) {
    EventItem item = draft("");
    item.title = item.dateEvent = item.timeEvent = item.remMess = item.photoPath = item.unsplashPath =
        std::nullopt;
    item.id.reset();
    shared.addEvent(item);
    const auto rows = reader.fetchEvents();
    ASSERT_THAT(rows, SizeIs(1));
    const EventCoreData& event = *rows.front();
    for (const auto& text : {event.title(), event.dateEvent(), event.timeEvent(), event.remMess(),
                             event.photoPath(), event.unsplashPath()})
        EXPECT_EQ(text, std::nullopt);
    EXPECT_EQ(event.id(), std::nullopt);
}

TEST_F(CoreDataStackTest, ADraftThatLacksANumberStopsTheProgramAndAddsNothing) {
    const std::function<void(EventItem&)> faults[] = {
        [](EventItem& item) { item.repEvent.reset(); },
        [](EventItem& item) { item.alertReminder.reset(); },
        [](EventItem& item) { item.repReminder.reset(); },
        [](EventItem& item) { item.timeFormat.reset(); },
        [](EventItem& item) { item.color.reset(); },
        [](EventItem& item) { item.gradient.reset(); },
        [](EventItem& item) { item.eventType.reset(); },
    };
    for (const auto& fault : faults) {
        EventItem item = draft("Unfinished");
        fault(item);
        EXPECT_THROW(shared.addEvent(item), fakes::ProgramStopped);
    }
    EXPECT_THAT(shared.fetchEvents(), IsEmpty());
    EXPECT_EQ(listener->heard, 0);
}

TEST_F(CoreDataStackTest, EachUpdateWritesItsAttributesAndTellsTheDelegateOnce) {
    shared.addEvent(draft("Birthday"));
    const auto event = reader.fetchEvent(identity);

    shared.updateTitle(identity, "Name day");
    shared.updateDate(identity, "06 March 2031");
    shared.updateReminder(identity, "Soon", NO_VALUE, -1);
    shared.updateBackground(identity, NO_VALUE, 7, "https://images.example/other", std::nullopt);
    EXPECT_EQ(reader.fetchEvent(identity), event);
    EXPECT_THAT(event->title(), Optional(std::string("Name day")));
    EXPECT_THAT(event->dateEvent(), Optional(std::string("06 March 2031")));
    EXPECT_THAT(event->timeEvent(), Optional(std::string("6:30 PM")));
    EXPECT_THAT(event->remMess(), Optional(std::string("Soon")));
    EXPECT_EQ(event->alertReminder(), NO_VALUE);
    EXPECT_EQ(event->repReminder(), -1);
    EXPECT_EQ(event->color(), NO_VALUE);
    EXPECT_EQ(event->gradient(), 7);
    EXPECT_THAT(event->unsplashPath(), Optional(std::string("https://images.example/other")));
    EXPECT_EQ(event->photoPath(), std::nullopt);

    shared.updateDateAndTime(identity, "07 March 2031", std::nullopt, 1, 5, false);
    shared.updateReminder(identity, std::nullopt, 8, 9);
    EXPECT_EQ(reader.fetchEvent(identity), event);
    EXPECT_THAT(event->dateEvent(), Optional(std::string("07 March 2031")));
    EXPECT_EQ(event->timeEvent(), std::nullopt);
    EXPECT_EQ(event->timeFormat(), 1);
    EXPECT_EQ(event->repEvent(), 5);
    EXPECT_FALSE(event->eventType());
    EXPECT_EQ(event->remMess(), std::nullopt);
    EXPECT_EQ(event->alertReminder(), 8);
    EXPECT_EQ(event->repReminder(), 9);
    EXPECT_EQ(listener->heard, 7);
}

TEST_F(CoreDataStackTest, TheDelegateHearsOfAWriteOnDiskEvenIfItChangedNothing) {
    class Reader final : public DataChangeDelegate {
    public:
        explicit Reader(CoreDataStack& stack) : stack_(stack) {}
        void dataDidChange() override { seen.push_back(*stack_.fetchEvent(identity)->title()); }
        std::vector<std::string> seen;

    private:
        CoreDataStack& stack_;
    };
    const auto reading = std::make_shared<Reader>(reader);
    const auto deaf = std::make_shared<Listener>();
    shared.delegate = reading;
    reader.delegate = deaf;
    shared.addEvent(draft("Birthday"));
    shared.updateTitle(identity, "Name day");
    shared.updateTitle(identity, "Name day");
    EXPECT_THAT(reading->seen, ElementsAre("Birthday", "Name day", "Name day"));
    EXPECT_EQ(deaf->heard, 0);
}

TEST_F(CoreDataStackTest, ADelegateThatIsGoneIsNotMissed) {
    listener.reset();
    shared.addEvent(draft("Birthday"));
    EXPECT_THAT(titles(reader.fetchEvents()), ElementsAre("Birthday"));
}

TEST_F(CoreDataStackTest, AnUnknownIdentityChangesNothingAndIsNotReported) {
    shared.addEvent(draft("Birthday"));
    shared.updateTitle(stranger, "x");
    shared.updateDate(stranger, "x");
    shared.updateDateAndTime(stranger, "x", "x", 0, 0, false);
    shared.updateReminder(stranger, "x", 0, 0);
    shared.updateBackground(stranger, 0, 0, "x", "x");
    shared.deleteEvent(stranger);
    EXPECT_EQ(listener->heard, 1);
    EXPECT_THAT(console.lines(), IsEmpty());
    EXPECT_THAT(titles(reader.fetchEvents()), ElementsAre("Birthday"));
    EXPECT_THROW((void)reader.fetchEvent(stranger), fakes::ProgramStopped);
}

TEST_F(CoreDataStackTest, OfTwoRowsWithOneIdentityTheFirstIsMeant) {
    shared.addEvent(draft("first"));
    shared.addEvent(draft("second"));
    shared.updateTitle(identity, "changed");
    EXPECT_THAT(titles(reader.fetchEvents()), ElementsAre("changed", "second"));
    EXPECT_THAT(reader.fetchEvent(identity)->title(), Optional(std::string("changed")));
    shared.deleteEvent(identity);
    EXPECT_THAT(titles(reader.fetchEvents()), ElementsAre("second"));
    EXPECT_EQ(listener->heard, 4);
}

TEST_F(CoreDataStackTest, AnotherTextIsNoPredicate) {
    shared.addEvent(draft("one"));
    EXPECT_THAT(shared.viewContext().fetch("id = \"9a0b1c2d-3e4f-5061-7283-94a5b6c7d8e9\"").value(),
                SizeIs(1));
    for (const char* text :
         {"", "id = ", "id = \"", "id = \"\"", "id = \"9A0B1C2D-3E4F-5061-7283-94A5B6C7D8E9",
          "id = 9A0B1C2D-3E4F-5061-7283-94A5B6C7D8E9", "title = \"9A0B1C2D-3E4F-5061-7283-94A5B6C7D8E9\"",
          "id = \"9A0B1C2D-3E4F-5061-7283-94A5B6C7D8E9\" OR 1 = 1",
          "id = \"9A0B1C2D-3E4F-5061-7283-94A5B6C7D8EG\""})
        EXPECT_FALSE(shared.viewContext().fetch(text)) << text;
}

TEST_F(CoreDataStackTest, RowsThatNobodyHoldsAreLetGoUnlessTheyHaveChanges) {
    for (const char* title : {"held", "changed", "idle"})
        shared.addEvent(draft(title));
    auto rows = shared.fetchEvents();
    const auto held = rows[0];
    const std::weak_ptr changed = rows[1];
    const std::weak_ptr idle = rows[2];
    rows[1]->setTitle("written");
    rows.clear();
    EXPECT_FALSE(changed.expired());
    EXPECT_TRUE(idle.expired());
    rows = shared.fetchEvents();
    EXPECT_EQ(rows[0], held);
    EXPECT_THAT(titles(rows), ElementsAre("held", "written", "idle"));
    EXPECT_EQ(shared.fetchEvents(), rows) << "all are held and none has changed";
    rows.clear();
    shared.updateTitle(identity, "saved");
    EXPECT_TRUE(changed.expired());
}

TEST_F(CoreDataStackTest, WhatAnotherProgramSavesIsFetched) {
    shared.addEvent(draft("old"));
    const auto rows = shared.fetchEvents();
    sqlite::SqliteEventStore otherStore(folder / "events.db");
    CoreDataStack other(otherStore, console);
    other.updateTitle(identity, "new");
    EXPECT_THAT(titles(shared.fetchEvents()), ElementsAre("new"));
    EXPECT_EQ(shared.fetchEvents(), rows);
}

TEST_F(CoreDataStackTest, OneContextGivesOneObjectARowAndEachContextItsOwn) {
    shared.addEvent(draft("Birthday"));
    const auto mine = shared.fetchEvents().front();
    EXPECT_EQ(shared.fetchEvent(identity), mine);
    EXPECT_EQ(shared.fetchEvents().front(), mine);
    EXPECT_NE(reader.fetchEvents().front(), mine);
}

TEST_F(CoreDataStackTest, AFetchRefreshesWhatIsUnchangedAndKeepsWhatIsNot) {
    shared.addEvent(draft("Birthday"));
    const auto seen = reader.fetchEvent(identity);
    seen->setEventType(false);
    shared.updateTitle(identity, "Name day");

    EXPECT_THAT(titles(reader.fetchEvents()), ElementsAre("Birthday"));
    EXPECT_FALSE(seen->eventType());
    EXPECT_TRUE(shared.fetchEvent(identity)->eventType());

    // A save writes only the changed attribute, so the title written meanwhile survives.
    ASSERT_EQ(reader.viewContext().save(), std::nullopt);
    EXPECT_THAT(titles(reader.fetchEvents()), ElementsAre("Name day"));
    EXPECT_FALSE(shared.fetchEvent(identity)->eventType());
}

TEST_F(CoreDataStackTest, AnAttributeWrittenDirectlyGoesWithTheNextSaveOfItsContext) {
    shared.addEvent(draft("first"));
    shared.addEvent(draft("second", stranger));
    shared.fetchEvent(stranger)->setRemMess("Soon");
    EXPECT_THAT(reader.fetchEvent(stranger)->remMess(), Optional(std::string("Bring a cake")));
    shared.updateTitle(identity, "changed");
    EXPECT_THAT(reader.fetchEvent(stranger)->remMess(), Optional(std::string("Soon")));
}

TEST_F(CoreDataStackTest, ADeletedRowLeavesItsObjectsWithTheirValues) {
    shared.addEvent(draft("Birthday"));
    const auto mine = shared.fetchEvent(identity);
    const auto theirs = reader.fetchEvent(identity);
    shared.deleteEvent(identity);
    EXPECT_THAT(shared.fetchEvents(), IsEmpty());
    EXPECT_THAT(reader.fetchEvents(), IsEmpty());
    for (const auto& event : {mine, theirs}) {
        event->setTitle("Too late");
        EXPECT_FALSE(event->hasChanges());
        EXPECT_THAT(event->id(), Optional(identity));
    }
}

TEST_F(CoreDataStackTest, ARowDeletedUnderUnsavedChangesIsNotBroughtBack) {
    shared.addEvent(draft("Birthday"));
    const auto theirs = reader.fetchEvent(identity);
    theirs->setTitle("Changed");
    shared.deleteEvent(identity);
    EXPECT_THAT(reader.fetchEvents(), IsEmpty());
    EXPECT_EQ(reader.viewContext().save(), std::nullopt);
    EXPECT_THAT(reader.fetchEvents(), IsEmpty());
}

TEST_F(CoreDataStackTest, ObjectsMayOutliveTheirStack) {
    shared.addEvent(draft("Birthday"));
    std::shared_ptr<EventCoreData> event;
    {
        CoreDataStack passing(store, console);
        event = passing.fetchEvent(identity);
    }
    event->setTitle("Changed");
    EXPECT_THAT(event->title(), Optional(std::string("Changed")));
    EXPECT_THAT(titles(shared.fetchEvents()), ElementsAre("Birthday"));
}

TEST_F(CoreDataStackTest, RowsOutliveTheProgramInTheirOrder) {
    for (const char* title : {"c", "a", "b"})
        shared.addEvent(draft(title));
    sqlite::SqliteEventStore reopened(folder / "events.db");
    CoreDataStack next(reopened, console);
    EXPECT_THAT(titles(next.fetchEvents()), ElementsAre("c", "a", "b"));
}

/// Faults that a healthy disk never shows.
class FailingStoreTest : public testing::Test {
protected:
    FailingStoreTest() {
        shared.delegate = listener;
        shared.addEvent(draft("Birthday"));
        listener->heard = 0;
    }

    fakes::RecordingConsole console;
    fakes::MemoryEventStore store;
    CoreDataStack shared{store, console};
    CoreDataStack reader{store, console};
    std::shared_ptr<Listener> listener = std::make_shared<Listener>();
    const Error full{"Disk", 28, "no space left"};
};

TEST_F(FailingStoreTest, AStoreThatCannotBeLoadedStopsTheProgramAndIsTriedAgain) {
    CoreDataStack late(store, console);
    const auto stopText = [&](LoadFailure failure) -> std::string {
        store.failNextLoad(std::move(failure));
        try {
            (void)late.fetchEvents();
        } catch (const fakes::ProgramStopped& stopped) {
            return stopped.what();
        }
        return "";
    };
    EXPECT_EQ(stopText({full, {{"file", "/data/events"}, {"code", "28"}}}),
              "Unresolved error no space left, [\"code\": \"28\", \"file\": \"/data/events\"]");
    EXPECT_EQ(stopText({full, {}}), "Unresolved error no space left, [:]");
    EXPECT_THAT(titles(late.fetchEvents()), ElementsAre("Birthday"));
    EXPECT_THAT(titles(late.fetchEvents()), ElementsAre("Birthday"));
    EXPECT_EQ(store.loads(), 4); // that of the shared stack, two failures, one success
}

TEST_F(FailingStoreTest, AFetchThatFailsEndsAnUpdateOrDeleteSilently) {
    const std::function<void()> operations[] = {
        [&] { shared.updateTitle(identity, "x"); },
        [&] { shared.updateDate(identity, "x"); },
        [&] { shared.updateDateAndTime(identity, "x", "x", 0, 0, false); },
        [&] { shared.updateReminder(identity, "x", 0, 0); },
        [&] { shared.updateBackground(identity, 5, 5, "x", "x"); },
        [&] { shared.deleteEvent(identity); },
    };
    const auto before = store.rows();
    for (const auto& operation : operations) {
        store.failNextFetch(full);
        operation();
        EXPECT_EQ(store.rows(), before);
    }
    EXPECT_EQ(listener->heard, 0);
    EXPECT_THAT(console.lines(), IsEmpty());
}

TEST_F(FailingStoreTest, AFetchThatFailsGivesNoRowsAndLosesNone) {
    const auto event = shared.fetchEvents().front();
    event->setColor(3);
    store.failNextFetch(full);
    EXPECT_THAT(shared.fetchEvents(), IsEmpty());
    EXPECT_THAT(shared.fetchEvents(), ElementsAre(event));
    EXPECT_EQ(event->color(), 3);
    store.failNextFetch(full);
    EXPECT_THROW((void)shared.fetchEvent(identity), fakes::ProgramStopped);
}

TEST_F(FailingStoreTest, ASaveThatFailsIsToldAndItsChangeGoesWithTheNextSave) {
    store.failNextSave(full);
    shared.updateTitle(identity, "Name day");
    EXPECT_THAT(console.take(), ElementsAre("Error: no space left"));
    EXPECT_EQ(listener->heard, 0);
    EXPECT_THAT(titles(shared.fetchEvents()), ElementsAre("Name day"));
    EXPECT_THAT(titles(reader.fetchEvents()), ElementsAre("Birthday"));

    shared.updateDate(identity, "06 March 2031");
    EXPECT_EQ(listener->heard, 1);
    EXPECT_THAT(titles(reader.fetchEvents()), ElementsAre("Name day"));
    EXPECT_THAT(console.lines(), IsEmpty());
}

TEST_F(FailingStoreTest, AnAddThatFailsStaysInItsContextUntilASaveSucceeds) {
    store.failNextSave(full);
    shared.addEvent(draft("Wedding", stranger));
    EXPECT_THAT(titles(shared.fetchEvents()), ElementsAre("Birthday", "Wedding"));
    const auto wedding = shared.fetchEvent(stranger);
    EXPECT_THROW((void)reader.fetchEvent(stranger), fakes::ProgramStopped);

    shared.updateTitle(stranger, "Golden wedding");
    EXPECT_THAT(titles(reader.fetchEvents()), ElementsAre("Birthday", "Golden wedding"));
    EXPECT_EQ(shared.fetchEvent(stranger), wedding);
    EXPECT_EQ(store.saves(), 2);
}

TEST_F(FailingStoreTest, AnAddThatFailedCanBeTakenBack) {
    store.failNextSave(full);
    shared.addEvent(draft("Wedding", stranger));
    shared.deleteEvent(stranger);
    EXPECT_THAT(titles(shared.fetchEvents()), ElementsAre("Birthday"));
    EXPECT_EQ(store.rows().size(), 1U);
}

TEST_F(FailingStoreTest, ADeleteThatFailsHidesTheRowHereAndGoesWithTheNextSave) {
    store.failNextSave(full);
    shared.deleteEvent(identity);
    EXPECT_THAT(console.take(), ElementsAre("Error: no space left"));
    EXPECT_THAT(shared.fetchEvents(), IsEmpty());
    EXPECT_THAT(titles(reader.fetchEvents()), ElementsAre("Birthday"));

    shared.addEvent(draft("Wedding", stranger));
    EXPECT_THAT(titles(shared.fetchEvents()), ElementsAre("Wedding"));
    EXPECT_THAT(titles(reader.fetchEvents()), ElementsAre("Wedding"));
}

} // namespace
} // namespace tessivo
