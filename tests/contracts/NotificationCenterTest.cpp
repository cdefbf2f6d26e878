#include "Ports/NotificationCenter.h"

#include "Reminders/QueuedNotificationCenter.h"
#include "fakes/FakeNotificationCenter.h"
#include "fakes/FakeNotificationQueue.h"
#include "fakes/OffsetCalendar.h"
#include "fakes/Timeline.h"
#include "standard/ThreadWorkQueue.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <functional>
#include <future>
#include <memory>
#include <utility>

namespace tessivo {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// A center and its user.
class Desk {
public:
    virtual ~Desk() = default;
    virtual NotificationCenter& center() = 0;
    virtual void settle() = 0; ///< until nothing is left to do without the user
    virtual bool isAsking() = 0;
    virtual void answer(bool granted) = 0;
};

class FakeDesk final : public Desk {
public:
    NotificationCenter& center() override { return center_; }
    void settle() override { center_.run(); }
    bool isAsking() override { return center_.questionIsOpen(); }
    void answer(bool granted) override {
        center_.answer(granted);
        settle();
    }

private:
    fakes::FakeNotificationCenter center_;
};

class RealDesk final : public Desk {
public:
    NotificationCenter& center() override { return center_; }
    void settle() override {
        // Once for the work, once for what its completions requested; in between, the main thread's share.
        for (int round = 0; round < 3; ++round) {
            std::promise<void> done;
            center_.getNotificationSettings([&](AuthorizationStatus) { done.set_value(); });
            done.get_future().wait();
            line_.runPosted();
        }
    }
    bool isAsking() override { return static_cast<bool>(answer_); }
    void answer(bool granted) override {
        std::exchange(answer_, nullptr)(granted);
        settle();
    }

private:
    fakes::Timeline line_{instantAt(1'790'000'000)};
    fakes::OffsetCalendar calendar_;
    fakes::QueueDisk disk_;
    fakes::FakeNotificationQueue queue_{disk_};
    std::function<void(bool)> answer_;
    QueuedNotificationCenter center_{{queue_, calendar_, calendar_, line_, line_},
                                     std::make_unique<ThreadWorkQueue>(),
                                     [this](auto answer) { answer_ = std::move(answer); },
                                     [] {}};
};

struct Implementation {
    const char* name;
    std::function<std::unique_ptr<Desk>()> make;
};

class NotificationCenterContract : public testing::TestWithParam<Implementation> {
protected:
    static NotificationRequest request(const std::string& identifier, const std::string& title = "") {
        return {identifier, {title, "words", true}, {{2027, 1, 31, 9, 0, {}}, true}};
    }

    Outcome add(const NotificationRequest& added) {
        Outcome outcome = Error{"Test", 0, "no answer came"};
        center.add(added, [&](const Outcome& error) { outcome = error; });
        desk->settle();
        return outcome;
    }

    std::vector<NotificationRequest> pending() {
        std::vector<NotificationRequest> requests;
        center.getPendingNotificationRequests([&](const auto& all) { requests = *all; });
        desk->settle();
        return requests;
    }

    AuthorizationStatus status() {
        auto seen = AuthorizationStatus::NotDetermined;
        center.getNotificationSettings([&](AuthorizationStatus now) { seen = now; });
        desk->settle();
        return seen;
    }

    /// Asks, and records the answer.
    void ask() {
        center.requestAuthorization(7, [this](bool granted, const Outcome& error) {
            answers.push_back(granted);
            EXPECT_EQ(error, std::nullopt);
        });
        desk->settle();
    }

    std::unique_ptr<Desk> desk = GetParam().make();
    NotificationCenter& center = desk->center();
    std::vector<bool> answers;
};

TEST_P(NotificationCenterContract, KeepsOneRequestAnIdentifierInTheOrderOfAdding) {
    EXPECT_EQ(add(request("a", "first")), std::nullopt);
    EXPECT_EQ(add(request("b")), std::nullopt);
    EXPECT_EQ(add(request("a", "second")), std::nullopt);
    EXPECT_THAT(pending(), ElementsAre(request("b"), request("a", "second")));
    center.removePendingNotificationRequests({"b", "unknown"});
    EXPECT_THAT(pending(), ElementsAre(request("a", "second")));
}

TEST_P(NotificationCenterContract, CompletionsComeInTheOrderOfTheCalls) {
    std::vector<std::string> order;
    center.add(request("a"), [&](const Outcome&) {
        order.emplace_back("add");
        center.getNotificationSettings([&](AuthorizationStatus) { order.emplace_back("asked by add"); });
    });
    center.getPendingNotificationRequests(
        [&](const auto& all) { order.push_back("pending " + std::to_string(all->size())); });
    center.getNotificationSettings([&](AuthorizationStatus) { order.emplace_back("settings"); });
    desk->settle();
    EXPECT_THAT(order, testing::UnorderedElementsAre("add", "pending 1", "settings", "asked by add"));
    order.erase(std::ranges::find(order, "asked by add"));
    EXPECT_THAT(order, ElementsAre("add", "pending 1", "settings"));
}

TEST_P(NotificationCenterContract, EachLookupHasItsOwnSnapshot) {
    std::vector<std::size_t> sizes;
    center.getPendingNotificationRequests([&](const auto& all) {
        center.add(request("a"), [](const Outcome&) {});
        sizes.push_back(all->size());
    });
    center.getPendingNotificationRequests([&](const auto& all) { sizes.push_back(all->size()); });
    center.add(request("b"), [](const Outcome&) {});
    desk->settle();
    EXPECT_EQ(sizes.at(0), 0U);
    EXPECT_EQ(pending().size(), 2U);
}

TEST_P(NotificationCenterContract, AsksTheUserOnceAndHoldsNothingUpMeanwhile) {
    ask();
    ask();
    EXPECT_TRUE(desk->isAsking());
    EXPECT_THAT(answers, IsEmpty());
    EXPECT_EQ(status(), AuthorizationStatus::NotDetermined);
    EXPECT_EQ(add(request("a")), std::nullopt);
    desk->answer(true);
    EXPECT_THAT(answers, ElementsAre(true, true));
    EXPECT_EQ(status(), AuthorizationStatus::Authorized);
    ask();
    EXPECT_FALSE(desk->isAsking());
    EXPECT_THAT(answers, ElementsAre(true, true, true));
}

TEST_P(NotificationCenterContract, AddsNothingWhileTheUserDenies) {
    ask();
    desk->answer(false);
    EXPECT_THAT(answers, ElementsAre(false));
    EXPECT_EQ(status(), AuthorizationStatus::Denied);
    EXPECT_EQ(add(request("a")), (Error{"NotificationCenter", 1, "Notifications are not allowed"}));
    EXPECT_THAT(pending(), IsEmpty());
}

INSTANTIATE_TEST_SUITE_P(Implementations, NotificationCenterContract,
                         testing::Values(Implementation{"Fake", [] { return std::make_unique<FakeDesk>(); }},
                                         Implementation{"Queued",
                                                        [] { return std::make_unique<RealDesk>(); }}),
                         [](const auto& test) { return test.param.name; });

} // namespace
} // namespace tessivo
