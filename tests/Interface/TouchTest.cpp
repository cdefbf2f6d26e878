#include "Interface/Touch.h"

#include "Interface/Animation.h"
#include "Interface/Button.h"
#include "Interface/CollectionView.h"
#include "Interface/Gestures.h"
#include "fakes/Timeline.h"

#include <gmock/gmock.h>

#include <string>
#include <vector>

namespace tessivo::ui {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr double rowHeight = 100;

/// A finger's way: places along x, each so many milliseconds after the one before.
struct Step {
    double after;
    double x;
};

double velocityAfter(const std::vector<Step>& way) {
    VelocityTracker tracker;
    Seconds time{0};
    for (const auto& [after, x] : way) {
        time += Seconds(after / 1000);
        tracker.add({x, 0}, time);
    }
    return tracker.velocity().x;
}

TEST(VelocityTrackerTest, TheLastMomentsCountMost) {
    const auto moving = [](std::vector<Step> way, int steps, double by) {
        for (int step = 0; step < steps; ++step)
            way.push_back({8, way.back().x + by});
        return way;
    };
    const std::vector<Step> start{{0, 300}};
    EXPECT_EQ(velocityAfter(start), 0);
    EXPECT_NEAR(velocityAfter(moving(start, 20, -4)), -500, 1e-6);
    // A flick back of some 30 ms after a long drag.
    EXPECT_GT(velocityAfter(moving(moving(start, 25, -4), 4, 3)), 100);
    // A finger that rests before it lifts throws nothing.
    for (int pause = 101; pause < 400; pause += 7) {
        auto rested = moving({{0, 300.7}}, 20, -4.1);
        rested.push_back({static_cast<double>(pause), rested.back().x});
        EXPECT_EQ(velocityAfter(rested), 0) << pause;
    }
    // The first move after a rest sets the direction.
    EXPECT_NEAR(velocityAfter({{0, 300}, {400, 312}}), 30, 1e-6);
    EXPECT_GT(velocityAfter({{0, 300}, {0, 312}}), 0) << "even where the device gives one time for both";
}

class FingerCell final : public CollectionViewCell {
public:
    FingerCell() {
        contentView.addSubview(button);
        button.setFrame({200, 20, 80, 60});
        const auto note = [this](const char* what) { return [this, what] { heard.emplace_back(what); }; };
        button.addTarget(PressEvent::Down, note("down"));
        button.addTarget(PressEvent::UpInside, note("inside"));
        button.addTarget(PressEvent::UpOutside, note("outside"));
        pan->addTarget(this, [this](GestureRecognizer&) { velocities.push_back(pan->velocity().x); });
        addGestureRecognizer(pan);
    }

    Button button;
    std::vector<std::string> heard;
    std::vector<double> velocities;
    const std::shared_ptr<PanGestureRecognizer> pan = std::make_shared<PanGestureRecognizer>();
};

class FingerList final : public CollectionViewDataSource, public CollectionViewDelegate {
public:
    int numberOfItems(CollectionView&) override { return items; }
    std::shared_ptr<CollectionViewCell> cellForItem(CollectionView& collection, int) override {
        return collection.dequeueReusableCell("cell");
    }
    Size sizeForItem(CollectionView&, int) override { return {300, rowHeight}; }
    void didSelectItem(CollectionView& collection, int item) override {
        tapped.push_back(item);
        if (reloads)
            collection.reloadData();
    }
    std::optional<Menu> contextMenuForItem(CollectionView&, int, Point) override {
        return hasMenu ? std::optional(Menu{{{"Edit", "pencil", nullptr, {}}}}) : std::nullopt;
    }

    int items = 5;
    bool hasMenu = true;
    bool reloads = false;
    std::vector<int> tapped;
};

class TouchTest : public testing::Test {
protected:
    TouchTest() {
        collection.setFrame({0, 0, 300, 400});
        collection.setAnimations(&animations);
        collection.registerCell("cell", [] { return std::make_shared<FingerCell>(); });
        collection.dataSource = list;
        collection.delegate = list;
        collection.reloadData();
    }

    [[nodiscard]] FingerCell& cell(int item) {
        return dynamic_cast<FingerCell&>(*collection.cellForItem(item));
    }
    void touch(int item, double x = 50) {
        start = {x, item * rowHeight + 50};
        finger = Touch::begin(collection, start, time);
    }
    bool moveBy(double x, double y, double after = 0.016) {
        time += Seconds(after);
        return finger->moveTo({start.x + x, start.y + y}, time);
    }
    void rest(double seconds) {
        time += Seconds(seconds);
        line.advance(Seconds(seconds));
    }

    fakes::Timeline line;
    Animations animations{line, line};
    ControlRegistry controls;
    std::shared_ptr<FingerList> list = std::make_shared<FingerList>();
    CollectionView collection{controls, "collection",
                              std::make_unique<LineLayout>(LineLayout::Axis::Vertical, 0)};
    Point start;
    Seconds time{1};
    std::shared_ptr<Touch> finger;
};

TEST_F(TouchTest, ACardLooksPressedOnceAScrollIsRuledOut) {
    touch(1);
    EXPECT_FALSE(cell(1).isHighlighted());
    rest(0.2);
    EXPECT_TRUE(cell(1).isHighlighted());
    finger->release(time);
    EXPECT_FALSE(cell(1).isHighlighted());
    EXPECT_THAT(list->tapped, ElementsAre(1));
    // A scroll never highlights a cell.
    touch(2);
    rest(0.05);
    EXPECT_FALSE(moveBy(0, 30));
    rest(0.3);
    EXPECT_FALSE(cell(2).isHighlighted());
    finger->release(time);
    // A quick tap highlights the cell for a moment.
    touch(3);
    finger->release(time);
    EXPECT_TRUE(cell(3).isHighlighted());
    rest(0.2);
    EXPECT_FALSE(cell(3).isHighlighted());
    EXPECT_THAT(list->tapped, ElementsAre(1, 3));
}

TEST_F(TouchTest, AHalfSecondsRestLiftsTheCardAndOpensItsMenu) {
    int opened = 0;
    const auto menus = collection.onMenu([&](const Menu&, Point point) {
        ++opened;
        EXPECT_EQ(point, (Point{50, 250}));
    });
    touch(2);
    rest(0.45);
    EXPECT_EQ(opened, 0);
    rest(0.1);
    EXPECT_EQ(opened, 1);
    EXPECT_TRUE(cell(2).isLifted());
    EXPECT_FALSE(cell(2).isHighlighted());
    finger->release(time);
    EXPECT_THAT(list->tapped, IsEmpty());
    collection.menuClosed();
    EXPECT_FALSE(cell(2).isLifted());
    // Without a menu a long press is a tap.
    list->hasMenu = false;
    touch(3);
    rest(1);
    finger->release(time);
    EXPECT_THAT(list->tapped, ElementsAre(3));
}

TEST_F(TouchTest, ADragIsARecognizersOrNobodys) {
    touch(1);
    EXPECT_FALSE(moveBy(-9, 0)) << "it trembles";
    EXPECT_TRUE(moveBy(-30, 0));
    moveBy(-60, 0);
    EXPECT_EQ(cell(1).pan->translation().x, -30) << "what told the drag from a tap moves nothing";
    finger->release(time);
    ASSERT_EQ(cell(1).velocities.size(), 3U);
    EXPECT_LT(cell(1).velocities.front(), 0);
    touch(2);
    EXPECT_FALSE(moveBy(10, 40));
    finger->release(time);
    EXPECT_THAT(cell(2).velocities, IsEmpty());
    EXPECT_THAT(list->tapped, IsEmpty());
}

TEST_F(TouchTest, AButtonHasItsPressAndMayGoUnderTheFinger) {
    touch(1, 240);
    finger->release(time);
    touch(1, 240);
    moveBy(0, 30);
    touch(2, 240);
    cell(2).button.removeFromSuperview();
    finger->release(time);
    EXPECT_THAT(cell(1).heard, ElementsAre("down", "inside", "down", "outside"));
    EXPECT_THAT(cell(2).heard, ElementsAre("down"));
    EXPECT_THAT(list->tapped, IsEmpty());
}

TEST_F(TouchTest, AReloadWaitsForTheFingerToGo) {
    touch(1);
    list->items = 2;
    collection.reloadData();
    EXPECT_EQ(collection.numberOfItems(), 5);
    moveBy(-40, 0);
    collection.reloadData();
    finger->release(time);
    EXPECT_EQ(collection.numberOfItems(), 2);
    EXPECT_EQ(cell(1).velocities.size(), 2U) << "the drag has ended on its own cell";
    // A tap takes effect at once, and a cancelled touch holds nothing back.
    list->reloads = true;
    list->items = 3;
    touch(1);
    finger->release(time);
    EXPECT_EQ(collection.numberOfItems(), 3);
    touch(1);
    list->items = 4;
    collection.reloadData();
    finger.reset();
    EXPECT_EQ(collection.numberOfItems(), 4);
}

TEST_F(TouchTest, ScrollingOnToFurtherItemsCarriesAReloadOut) {
    touch(1);
    list->items = 3;
    collection.reloadData();
    collection.scrolledTo({0, 100});
    EXPECT_EQ(collection.numberOfItems(), 3);
    EXPECT_EQ(collection.cellForItem(3), nullptr);
}

} // namespace
} // namespace tessivo::ui
