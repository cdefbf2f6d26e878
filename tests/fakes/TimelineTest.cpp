#include "fakes/Timeline.h"

#include <gmock/gmock.h>

#include <string>
#include <thread>

namespace tessivo::fakes {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class TimelineTest : public testing::Test {
protected:
    Subscription noteOnce(double delay, const std::string& name) {
        return line.once(Seconds(delay), [this, name] { notes.push_back(name); });
    }

    Timeline line{instantAt(1000)};
    std::vector<std::string> notes;
};

TEST_F(TimelineTest, TimersFireInOrderOfDueTimeThenOfMaking) {
    const auto late = noteOnce(3, "late");
    const auto first = noteOnce(1, "first");
    const auto second = noteOnce(1, "second");
    line.advance(Seconds(2.999));
    EXPECT_THAT(notes, ElementsAre("first", "second"));
    line.advance(Seconds(0.001));
    EXPECT_THAT(notes, ElementsAre("first", "second", "late"));
    EXPECT_EQ(line.pending(), 0U);
}

TEST_F(TimelineTest, WallTimeStandsAtTheDueTimeWhileATimerFires) {
    Instant seen;
    const auto timer = line.once(Seconds(7), [&] { seen = line.now(); });
    line.advance(Seconds(60));
    EXPECT_EQ(seen, instantAt(1007));
    EXPECT_EQ(line.now(), instantAt(1060));
}

TEST_F(TimelineTest, ADroppedHandleEndsItsTimerAlsoFromWithinAnother) {
    auto victim = noteOnce(2, "victim");
    const auto killer = line.once(Seconds(1), [&] { victim.end(); });
    line.advance(Seconds(5));
    EXPECT_THAT(notes, IsEmpty());
}

TEST_F(TimelineTest, ARepeatingTimerKeepsItsRhythmAndMayDropItself) {
    Subscription timer;
    timer = line.repeating(Seconds(60), [&] {
        notes.push_back(std::to_string(static_cast<int>(secondsSince1970(line.now()))));
        if (notes.size() == 3)
            timer.end();
    });
    line.advance(Seconds(1000));
    EXPECT_THAT(notes, ElementsAre("1060", "1120", "1180"));
}

TEST_F(TimelineTest, AJumpOfTheWallClockLeavesTimersAlone) {
    const auto timer = noteOnce(10, "timer");
    line.setWall(instantAt(999'999));
    EXPECT_THAT(notes, IsEmpty());
    line.advance(Seconds(10));
    EXPECT_THAT(notes, ElementsAre("timer"));
    EXPECT_EQ(line.now(), instantAt(1'000'009));
}

TEST_F(TimelineTest, PostedWorkNeverRunsInlineAndKeepsItsOrder) {
    line.post([&] {
        notes.push_back("a");
        line.post([&] { notes.push_back("c"); });
    });
    line.post([&] { notes.push_back("b"); });
    EXPECT_THAT(notes, IsEmpty());
    line.runPosted();
    EXPECT_THAT(notes, ElementsAre("a", "b", "c"));
}

TEST_F(TimelineTest, WorkPostedByATimerRunsBeforeTheNextTimer) {
    const auto first = line.once(Seconds(1), [&] { line.post([&] { notes.push_back("posted"); }); });
    const auto second = noteOnce(1, "second");
    line.advance(Seconds(1));
    EXPECT_THAT(notes, ElementsAre("posted", "second"));
}

TEST_F(TimelineTest, WorkMayBePostedFromAnotherThread) {
    std::thread([&] { line.post([&] { notes.push_back("from afar"); }); }).join();
    line.runPosted();
    EXPECT_THAT(notes, ElementsAre("from afar"));
}

TEST_F(TimelineTest, FramesComeOnlyWhileSomeoneListens) {
    line.setFrameInterval(Seconds(0.25));
    int frames = 0;
    Seconds last{0};
    auto listening = line.listen([&](Seconds timestamp) {
        ++frames;
        last = timestamp;
    });
    EXPECT_TRUE(line.framesAreAskedFor());
    line.advance(Seconds(1));
    EXPECT_EQ(frames, 4);
    EXPECT_EQ(last, Seconds(1));
    listening.end();
    EXPECT_FALSE(line.framesAreAskedFor());
    line.advance(Seconds(1));
    EXPECT_EQ(frames, 4);
}

TEST_F(TimelineTest, AListenerMayLeaveDuringAFrame) {
    Subscription self;
    int frames = 0;
    self = line.listen([&](Seconds) {
        ++frames;
        self.end();
    });
    const auto other = line.listen([&](Seconds) { ++frames; });
    line.setFrameInterval(Seconds(0.5));
    line.advance(Seconds(0.02));
    EXPECT_EQ(frames, 2);
}

TEST(TimelineLifetime, HandlesMayOutliveTheLine) {
    Subscription timer;
    Subscription frames;
    {
        Timeline line;
        timer = line.once(Seconds(1), [] {});
        frames = line.listen([](Seconds) {});
    }
    timer.end();
    frames.end();
}

} // namespace
} // namespace tessivo::fakes
