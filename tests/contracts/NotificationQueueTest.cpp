#include "Ports/NotificationQueue.h"

#include "fakes/FakeNotificationQueue.h"
#include "fakes/RecordingConsole.h"
#include "sqlite/SqliteNotificationQueue.h"
#include "support/TemporaryFolder.h"

#include <gmock/gmock.h>

#include <functional>

namespace tessivo {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// Where a queue lives; every instance stands for a process.
struct Place {
    TemporaryFolder folder;
    fakes::QueueDisk disk;
    fakes::RecordingConsole console;
};

struct Implementation {
    const char* name;
    std::function<std::unique_ptr<NotificationQueue>(Place&)> make;
};

class NotificationQueueContract : public testing::TestWithParam<Implementation> {
protected:
    std::unique_ptr<NotificationQueue> process() { return GetParam().make(place); }

    static NotificationRequest request(const std::string& identifier, const std::string& title = "") {
        return {identifier, {title, "words", false}, {{2027, 1, 31, 9, 0, {}}, true}};
    }

    static std::vector<std::string> titles(NotificationQueue& queue) {
        std::vector<std::string> all;
        for (const auto& queued : *queue.pending().value())
            all.push_back(queued.request.content.title);
        return all;
    }

    static std::int64_t sequenceOf(NotificationQueue& queue, const std::string& title) {
        for (const auto& queued : *queue.pending().value()) {
            if (queued.request.content.title == title)
                return queued.sequence;
        }
        return 0;
    }

    Place place;
    std::unique_ptr<NotificationQueue> app = process();
    std::unique_ptr<NotificationQueue> helper = process();
};

TEST_P(NotificationQueueContract, KeepsARequestWhole) {
    const NotificationRequest full{
        "a", {"<b>Ä</b>", "two\nlines 'quoted' \"", true}, {{2570, 13, 1, 0, 59, 58}, false}};
    const NotificationRequest sparse{"b", {"", "", false}, {{{}, {}, {}, 23, {}, 0}, true}};
    EXPECT_EQ(app->add(full), std::nullopt);
    EXPECT_EQ(app->add(sparse), std::nullopt);
    const auto pending = helper->pending();
    ASSERT_TRUE(pending);
    ASSERT_EQ(pending.value()->size(), 2U);
    EXPECT_EQ(pending.value()->at(0).request, full);
    EXPECT_EQ(pending.value()->at(1).request, sparse);
}

TEST_P(NotificationQueueContract, AReplacedRequestGoesToTheEndUnderANewNumber) {
    EXPECT_EQ(app->add(request("a", "first")), std::nullopt);
    EXPECT_EQ(app->add(request("b", "other")), std::nullopt);
    const auto old = sequenceOf(*helper, "first");
    EXPECT_EQ(app->add(request("a", "second")), std::nullopt);
    EXPECT_THAT(titles(*helper), ElementsAre("other", "second"));
    EXPECT_EQ(helper->retire({old}, "token", instantAt(0)), std::nullopt);
    EXPECT_THAT(titles(*app), ElementsAre("other", "second"));
    EXPECT_THAT(app->shownIn("token"), IsEmpty());
}

TEST_P(NotificationQueueContract, RemovesByIdentifier) {
    for (const auto* identifier : {"a", "b", "c"})
        EXPECT_EQ(app->add(request(identifier, identifier)), std::nullopt);
    EXPECT_EQ(app->remove({"a", "unknown", "c"}), std::nullopt);
    EXPECT_EQ(app->remove({}), std::nullopt);
    EXPECT_THAT(titles(*helper), ElementsAre("b"));
}

TEST_P(NotificationQueueContract, ARetiredRequestIsInTheLedger) {
    for (const auto* identifier : {"a", "b", "c"})
        EXPECT_EQ(app->add(request(identifier, identifier)), std::nullopt);
    EXPECT_EQ(helper->retire({sequenceOf(*helper, "a"), sequenceOf(*helper, "c")}, "group", instantAt(1)),
              std::nullopt);
    EXPECT_THAT(titles(*app), ElementsAre("b"));
    EXPECT_EQ(helper->retire({sequenceOf(*helper, "b")}, "", instantAt(2)), std::nullopt);
    EXPECT_THAT(titles(*app), IsEmpty());
    EXPECT_THAT(app->shownIn("group"), ElementsAre("a", "c"));
    EXPECT_THAT(app->shownIn("b"), IsEmpty());
    EXPECT_THAT(app->shownIn(""), IsEmpty());
}

TEST_P(NotificationQueueContract, ANumberIsNeverGivenTwice) {
    EXPECT_EQ(app->add(request("a", "first")), std::nullopt);
    const auto first = sequenceOf(*app, "first");
    EXPECT_EQ(app->remove({"a"}), std::nullopt);
    EXPECT_EQ(process()->add(request("a", "second")), std::nullopt);
    EXPECT_NE(sequenceOf(*app, "second"), first);
}

TEST_P(NotificationQueueContract, TheSameListStandsUntilSomebodyChangesSomething) {
    EXPECT_EQ(app->add(request("a")), std::nullopt);
    const auto list = helper->pending().value();
    EXPECT_EQ(helper->pending().value(), list);
    EXPECT_EQ(app->add(request("b")), std::nullopt);
    EXPECT_EQ(helper->pending().value()->size(), 2U);
    EXPECT_EQ(list->size(), 1U);
    EXPECT_EQ(helper->remove({"a"}), std::nullopt);
    EXPECT_EQ(helper->pending().value()->size(), 1U);
}

TEST_P(NotificationQueueContract, RemembersTheUsersAnswer) {
    EXPECT_EQ(app->authorization().value(), AuthorizationStatus::NotDetermined);
    for (const auto status : {AuthorizationStatus::Denied, AuthorizationStatus::Authorized}) {
        EXPECT_EQ(app->setAuthorization(status), std::nullopt);
        EXPECT_EQ(helper->authorization().value(), status);
        EXPECT_EQ(process()->authorization().value(), status);
    }
}

INSTANTIATE_TEST_SUITE_P(
    Implementations, NotificationQueueContract,
    testing::Values(Implementation{"Fake",
                                   [](Place& place) {
                                       return std::make_unique<fakes::FakeNotificationQueue>(place.disk);
                                   }},
                    Implementation{"Sqlite",
                                   [](Place& place) {
                                       return std::make_unique<sqlite::SqliteNotificationQueue>(
                                           place.folder / "queue.sqlite", place.console);
                                   }}),
    [](const auto& test) { return test.param.name; });

} // namespace
} // namespace tessivo
