#include "fakes/Timeline.h"
#include "qt/QtFrameClock.h"
#include "qt/QtMainQueue.h"
#include "qt/QtTimers.h"

#include <gmock/gmock.h>

#include <QElapsedTimer>
#include <QGuiApplication>
#include <QQuickWindow>
#include <QTest>

#include <algorithm>
#include <functional>
#include <memory>
#include <ostream>
#include <string>
#include <thread>
#include <vector>

namespace tessivo {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// The main thread's time, and the loop that it passes in.
class MainTime {
public:
    virtual ~MainTime() = default;
    virtual Timers& timers() = 0;
    virtual MainQueue& queue() = 0;
    virtual FrameClock& frames() = 0;
    [[nodiscard]] virtual Seconds elapsed() const = 0;
    /// Lets time pass until `done`; false if that takes longer than only a fault can explain.
    virtual bool runUntil(const std::function<bool()>& done) = 0;
};

class VirtualTime final : public MainTime {
public:
    Timers& timers() override { return line_; }
    MainQueue& queue() override { return line_; }
    FrameClock& frames() override { return line_; }
    Seconds elapsed() const override { return line_.now() - start_; }
    bool runUntil(const std::function<bool()>& done) override {
        for (int step = 0; step < 10'000 && !done(); ++step)
            line_.advance(Seconds(0.001));
        return done();
    }

private:
    fakes::Timeline line_;
    Instant start_ = line_.now();
};

class QtTime final : public MainTime {
public:
    QtTime() {
        frames_.setWindow(&window_);
        window_.show();
        elapsed_.start();
    }
    Timers& timers() override { return timers_; }
    MainQueue& queue() override { return queue_; }
    FrameClock& frames() override { return frames_; }
    Seconds elapsed() const override { return Seconds(static_cast<double>(elapsed_.nsecsElapsed()) * 1e-9); }
    bool runUntil(const std::function<bool()>& done) override { return QTest::qWaitFor(done, 10'000); }

private:
    QQuickWindow window_;
    QtTimers timers_;
    QtMainQueue queue_;
    QtFrameClock frames_;
    QElapsedTimer elapsed_;
};

struct Implementation {
    const char* name;
    std::function<std::unique_ptr<MainTime>()> make;
};

void PrintTo(const Implementation& implementation, std::ostream* stream) {
    *stream << implementation.name;
}

const Implementation implementations[] = {
    {"Timeline", [] { return std::make_unique<VirtualTime>(); }},
    {"Qt", [] { return std::make_unique<QtTime>(); }},
};

/// Windows need an application; one serves the whole test program, to its end.
void makeApplication() {
    static int count = 1;
    static char name[] = "contract_tests";
    static char* arguments[] = {name, nullptr};
    static const auto* application = new QGuiApplication(count, arguments);
    static_cast<void>(application);
}

class TimeContract : public testing::TestWithParam<Implementation> {
protected:
    static void SetUpTestSuite() { makeApplication(); }

    [[nodiscard]] Subscription noteOnce(double delay, const std::string& name) {
        return time->timers().once(Seconds(delay), [this, name] { notes.push_back(name); });
    }
    void note(const std::string& name) { notes.push_back(name); }
    bool runUntilNoted(const std::string& name) {
        return time->runUntil([&] { return std::ranges::find(notes, name) != notes.end(); });
    }

    std::vector<std::string> notes;
    std::unique_ptr<MainTime> time = GetParam().make();
};

TEST_P(TimeContract, ATimerFiresOnceNeverInlineAndNeverEarly) {
    for (const double delay : {-1.0, 0.0, 0.001, 0.0304}) {
        SCOPED_TRACE(delay);
        notes.clear();
        const Seconds start = time->elapsed();
        Seconds fired{};
        const auto timer = time->timers().once(Seconds(delay), [&] {
            fired = time->elapsed();
            note("timer");
        });
        EXPECT_THAT(notes, IsEmpty());
        ASSERT_TRUE(runUntilNoted("timer"));
        EXPECT_GE((fired - start).count(), delay - 1e-5);
        const auto later = noteOnce(0.03, "later");
        ASSERT_TRUE(runUntilNoted("later"));
        EXPECT_THAT(notes, ElementsAre("timer", "later"));
    }
}

TEST_P(TimeContract, TimersFireInTheOrderOfTheirDueTimes) {
    const auto last = noteOnce(0.12, "last");
    const auto first = noteOnce(0.02, "first");
    const auto second = noteOnce(0.07, "second");
    ASSERT_TRUE(runUntilNoted("last"));
    EXPECT_THAT(notes, ElementsAre("first", "second", "last"));
}

TEST_P(TimeContract, ADroppedHandleEndsItsTimer) {
    auto dropped = noteOnce(0.01, "dropped");
    dropped.end();
    auto victim = noteOnce(0.06, "victim");
    const auto killer = time->timers().once(Seconds(0.02), [&] { victim.end(); });
    const auto end = noteOnce(0.1, "end");
    ASSERT_TRUE(runUntilNoted("end"));
    EXPECT_THAT(notes, ElementsAre("end"));
}

TEST_P(TimeContract, ARepeatingTimerGoesOnUntilItDropsItself) {
    Subscription timer;
    timer = time->timers().repeating(Seconds(0.01), [&] {
        note("tick");
        if (notes.size() == 3)
            timer.end();
    });
    ASSERT_TRUE(time->runUntil([&] { return notes.size() == 3; }));
    const auto end = noteOnce(0.05, "end");
    ASSERT_TRUE(runUntilNoted("end"));
    EXPECT_THAT(notes, ElementsAre("tick", "tick", "tick", "end"));
}

TEST_P(TimeContract, PostedWorkRunsLaterInTheOrderOfPosting) {
    time->queue().post([&] {
        time->queue().post([&] { note("c"); });
        note("a");
    });
    time->queue().post([&] { note("b"); });
    EXPECT_THAT(notes, IsEmpty());
    ASSERT_TRUE(runUntilNoted("c"));
    EXPECT_THAT(notes, ElementsAre("a", "b", "c"));
}

TEST_P(TimeContract, WorkOfOtherThreadsRunsOnTheMainThreadInEachOnesOrder) {
    constexpr int perThread = 200;
    std::vector<int> seen[2];
    bool allOnMain = true;
    const auto main = std::this_thread::get_id();
    {
        std::vector<std::jthread> threads;
        for (auto& own : seen) {
            threads.emplace_back([&] {
                for (int number = 0; number < perThread; ++number)
                    time->queue().post([&own, &allOnMain, main, number] {
                        own.push_back(number);
                        allOnMain = allOnMain && std::this_thread::get_id() == main;
                    });
            });
        }
    }
    ASSERT_TRUE(time->runUntil([&] { return seen[0].size() + seen[1].size() == 2 * perThread; }));
    for (const auto& own : seen)
        EXPECT_TRUE(std::ranges::is_sorted(own));
    EXPECT_TRUE(allOnMain);
}

TEST_P(TimeContract, FramesComeWithRisingStampsWhileSomeoneListens) {
    std::vector<Seconds> stamps;
    auto listening = time->frames().listen([&](Seconds stamp) { stamps.push_back(stamp); });
    EXPECT_TRUE(stamps.empty());
    ASSERT_TRUE(time->runUntil([&] { return stamps.size() >= 5; }));
    EXPECT_EQ(std::ranges::adjacent_find(stamps, std::greater_equal()), stamps.end());
    listening.end();
    const auto heard = stamps.size();
    int others = 0;
    const auto other = time->frames().listen([&](Seconds) { ++others; });
    ASSERT_TRUE(time->runUntil([&] { return others >= 3; }));
    EXPECT_EQ(stamps.size(), heard);
}

TEST_P(TimeContract, AListenerMayEndItselfAndOthersDuringAFrame) {
    Subscription killer;
    Subscription victim;
    killer = time->frames().listen([&](Seconds) {
        note("killer");
        victim.end();
        killer.end();
    });
    victim = time->frames().listen([&](Seconds) { note("victim"); });
    int frames = 0;
    const auto witness = time->frames().listen([&](Seconds) { ++frames; });
    ASSERT_TRUE(time->runUntil([&] { return frames >= 3; }));
    EXPECT_THAT(notes, ElementsAre("killer"));
}

TEST_P(TimeContract, WhatStillWaitsAtTheEndIsDroppedAndHandlesMayOutliveIt) {
    auto frame = time->frames().listen([&](Seconds) { note("frame"); });
    auto timer = noteOnce(0.5, "timer");
    time->queue().post([&] { note("work"); });
    time.reset();
    frame.end();
    timer.end();
    time = GetParam().make();
    const auto end = noteOnce(0, "end");
    ASSERT_TRUE(runUntilNoted("end"));
    EXPECT_THAT(notes, ElementsAre("end"));
}

INSTANTIATE_TEST_SUITE_P(All, TimeContract, testing::ValuesIn(implementations),
                         [](const auto& tested) { return tested.param.name; });

} // namespace
} // namespace tessivo
