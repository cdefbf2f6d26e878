#include "Interface/Button.h"
#include "Interface/CollectionView.h"
#include "Interface/Gestures.h"
#include "shell/ControlWindow.h"

#include <QTest>

#include <gmock/gmock.h>

#include <string>
#include <vector>

namespace tessivo {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using ui::GestureState;

constexpr double cellHeight = 100;
constexpr int cellCount = 30;

/// A cell that notes what its recognizers and its button hear, and takes of it what the test wants.
class NotingCell final : public ui::CollectionViewCell, public ui::GestureRecognizerDelegate {
public:
    NotingCell() {
        contentView.addSubview(button);
        button.setFrame({250, 20, 100, 60});
        const auto note = [this](const char* what) { return [this, what] { heard.emplace_back(what); }; };
        button.addTarget(ui::PressEvent::Down, note("down"));
        button.addTarget(ui::PressEvent::UpInside, note("inside"));
        button.addTarget(ui::PressEvent::UpOutside, note("outside"));
        pan->addTarget(this, [this](ui::GestureRecognizer&) {
            states.push_back(pan->state());
            translation = pan->translation();
        });
        tap_->addTarget(this, [this](ui::GestureRecognizer&) { heard.emplace_back("tap"); });
        addGestureRecognizer(tap_);
        addGestureRecognizer(pan);
    }

    void follow(std::shared_ptr<NotingCell> self) {
        pan->delegate = self;
        tap_->delegate = self;
    }
    bool gestureRecognizerShouldBegin(ui::GestureRecognizer& recognizer) override {
        return &recognizer == pan.get() ? takesPans : takesTaps;
    }

    bool takesPans = true;
    bool takesTaps = false;
    ui::Button button;
    std::vector<std::string> heard;
    std::vector<GestureState> states;
    ui::Point translation;
    const std::shared_ptr<ui::PanGestureRecognizer> pan = std::make_shared<ui::PanGestureRecognizer>();

private:
    const std::shared_ptr<ui::TapGestureRecognizer> tap_ = std::make_shared<ui::TapGestureRecognizer>();
};

class NotingList final : public ui::CollectionViewDataSource, public ui::CollectionViewDelegate {
public:
    int numberOfItems(ui::CollectionView&) override { return cellCount; }
    std::shared_ptr<ui::CollectionViewCell> cellForItem(ui::CollectionView& collection, int) override {
        return collection.dequeueReusableCell("cell");
    }
    ui::Size sizeForItem(ui::CollectionView&, int) override { return {390, cellHeight}; }
    void didSelectItem(ui::CollectionView&, int item) override { tapped.push_back(item); }
    std::optional<ui::Menu> contextMenuForItem(ui::CollectionView&, int item, ui::Point) override {
        if (!hasMenu)
            return std::nullopt;
        const auto note = [this, item](const char* what) {
            return [this, item, what] { chosen.push_back(what + std::to_string(item)); };
        };
        return ui::Menu{{{"Edit", "pencil", nullptr, {{"Edit Title", "textformat", note("title"), {}}}},
                         {"Delete", "trash", note("delete"), {}}}};
    }

    bool hasMenu = true;
    std::vector<int> tapped;
    std::vector<std::string> chosen;
};

class TouchSurfaceTest : public ControlWindow {
protected:
    TouchSurfaceTest() {
        collection.registerCell("cell", [] {
            auto cell = std::make_shared<NotingCell>();
            cell->follow(cell);
            return cell;
        });
        collection.dataSource = list;
        collection.delegate = list;
        screen->view().addSubview(collection);
        collection.reloadData();
        draw(*screen, R"(
            CollectionFlick {
                anchors.fill: parent
                collection: root.screen.control("collection") as CollectionItem
                delegate: FocusScope {
                    id: drawing
                    required property CellItem cell
                    x: cell.x
                    y: cell.y
                    width: cell.width
                    height: cell.height
                }
            })");
    }
    [[nodiscard]] NotingCell& cell(int item) {
        return dynamic_cast<NotingCell&>(*collection.cellForItem(item));
    }
    [[nodiscard]] static QPointF inItem(int item, double x = 100) { return {x, item * cellHeight + 50}; }

    /// A finger comes down and stays, long enough for a menu to open.
    void hold(QPointF point) {
        QTest::touchEvent(&window, finger_).press(0, point.toPoint());
        timeline.advance(Seconds(0.6));
    }
    void letGo(QPointF point) { QTest::touchEvent(&window, finger_).release(0, point.toPoint()); }

    std::shared_ptr<NotingList> list = std::make_shared<NotingList>();
    ui::CollectionView collection{screen->controls, "collection",
                                  std::make_unique<ui::LineLayout>(ui::LineLayout::Axis::Vertical, 0.0)};

private:
    QPointingDevice* finger_ = QTest::createTouchDevice();
};

TEST_F(TouchSurfaceTest, ATapGoesToARecognizerThatTakesItAndElseToTheItem) {
    hand.tapAt(inItem(2));
    EXPECT_THAT(list->tapped, ElementsAre(2));
    EXPECT_THAT(cell(2).heard, IsEmpty());

    cell(3).takesTaps = true;
    hand.tapAt(inItem(3));
    EXPECT_THAT(list->tapped, ElementsAre(2));
    EXPECT_THAT(cell(3).heard, ElementsAre("tap"));
}

TEST_F(TouchSurfaceTest, AButtonInACellHasItsPressToItself) {
    hand.tapAt(inItem(1, 300));
    EXPECT_THAT(cell(1).heard, ElementsAre("down", "inside"));

    hand.drag(inItem(2, 300), inItem(2, 200));
    EXPECT_THAT(cell(2).heard, ElementsAre("down", "outside"));
    EXPECT_THAT(list->tapped, IsEmpty());
}

TEST_F(TouchSurfaceTest, AButtonMayGoUnderTheFinger) {
    cell(1).button.addTarget(ui::PressEvent::Down, [this] { cell(1).button.removeFromSuperview(); });

    hand.tapAt(inItem(1, 300));

    EXPECT_THAT(cell(1).heard, ElementsAre("down"));
    EXPECT_THAT(list->tapped, IsEmpty());
}

TEST_F(TouchSurfaceTest, ASidewaysDragIsTheCellsAndTheListStandsStill) {
    hand.drag(inItem(1, 300), inItem(1, 300) + QPointF(-200, 40));

    ASSERT_GE(cell(1).states.size(), 3u);
    EXPECT_EQ(cell(1).states.front(), GestureState::Began);
    EXPECT_EQ(cell(1).states.back(), GestureState::Ended);
    // All the way but for the first stretch, which only tells a drag from a tap.
    EXPECT_LT(cell(1).translation.x, -150);
    EXPECT_GT(cell(1).translation.x, -200);
    EXPECT_EQ(collection.contentOffset().y, 0);
    EXPECT_THAT(list->tapped, IsEmpty());
}

TEST_F(TouchSurfaceTest, ADragThatNoCellWantsScrollsOrDoesNothing) {
    std::vector<GestureState> scrolling;
    collection.panGestureRecognizer()->addTarget(
        this, [&](ui::GestureRecognizer& pan) { scrolling.push_back(pan.state()); });

    cell(4).takesPans = false;
    hand.drag(inItem(4, 300), inItem(4, 100));
    EXPECT_THAT(cell(4).states, IsEmpty());
    EXPECT_THAT(scrolling, IsEmpty());

    hand.drag(inItem(5), inItem(5) - QPointF(0, 250));
    EXPECT_GT(collection.contentOffset().y, 150);
    EXPECT_THAT(cell(5).states, IsEmpty());
    EXPECT_THAT(scrolling, ElementsAre(GestureState::Began, GestureState::Ended));
    EXPECT_THAT(list->tapped, IsEmpty());
}

TEST_F(TouchSurfaceTest, ACellIsHighlightedUntilItsFingerGoesOrDrags) {
    const QPointF start = inItem(1);
    QPointingDevice* finger = QTest::createTouchDevice();
    QTest::touchEvent(&window, finger).press(0, start.toPoint());
    EXPECT_FALSE(cell(1).isHighlighted()) << "it may yet be a scroll";
    timeline.advance(Seconds(0.2));
    EXPECT_TRUE(cell(1).isHighlighted());
    QTest::touchEvent(&window, finger).move(0, (start + QPointF(30, 0)).toPoint());
    // A window gathers the moves of a touch and hands them on with its next picture.
    EXPECT_TRUE(runUntil([this] { return !cell(1).isHighlighted(); }));
    QTest::touchEvent(&window, finger).release(0, (start + QPointF(30, 0)).toPoint());
    EXPECT_FALSE(cell(1).isHighlighted());
}

TEST_F(TouchSurfaceTest, AFingerThatRestsOpensTheMenuAndTapsNothing) {
    hold(inItem(2));
    ASSERT_TRUE(runUntil([this] { return hand.find(QStringLiteral("Edit")) != nullptr; }));
    letGo(inItem(2));
    const QQuickItem& row = *hand.find(QStringLiteral("Edit"));
    EXPECT_TRUE(runUntil([&] {
        const QImage drawn = window.grabWindow();
        return drawn.pixelColor((middleOf(row) * drawn.devicePixelRatio()).toPoint()) == QColor(Qt::white);
    })) << "its rows stand on a ground of their own";

    hand.tap(QStringLiteral("Edit"));
    hand.tap(QStringLiteral("Edit Title"));

    EXPECT_THAT(list->chosen, ElementsAre("title2"));
    EXPECT_TRUE(runUntil([this] { return hand.find(QStringLiteral("Edit Title")) == nullptr; }));
    EXPECT_THAT(list->tapped, IsEmpty());
}

TEST_F(TouchSurfaceTest, TheMenuServesTheKeyboardAndTheRightMouseButton) {
    QTest::mouseClick(&window, Qt::RightButton, Qt::NoModifier, inItem(1).toPoint());
    ASSERT_TRUE(runUntil([this] { return hand.find(QStringLiteral("Delete")) != nullptr; }));

    hand.press(Qt::Key_Down);
    hand.press(Qt::Key_Return);

    EXPECT_THAT(list->chosen, ElementsAre("delete1"));
    EXPECT_THAT(list->tapped, IsEmpty());
}

TEST_F(TouchSurfaceTest, EscapeClosesTheMenuAndChoosesNothing) {
    QTest::mouseClick(&window, Qt::RightButton, Qt::NoModifier, inItem(1).toPoint());
    ASSERT_TRUE(runUntil([this] { return hand.find(QStringLiteral("Delete")) != nullptr; }));
    hand.press(Qt::Key_Escape);
    EXPECT_TRUE(runUntil([this] { return hand.find(QStringLiteral("Delete")) == nullptr; }));
    EXPECT_THAT(list->chosen, IsEmpty());
}

TEST_F(TouchSurfaceTest, WithoutAMenuALongPressIsATap) {
    list->hasMenu = false;
    hold(inItem(3));
    letGo(inItem(3));
    EXPECT_THAT(list->tapped, ElementsAre(3));
}

TEST_F(TouchSurfaceTest, AReloadUnderAFingerLeavesItsDragWithItsCell) {
    auto& dragged = cell(1);
    dragged.pan->addTarget(this, [&, reloaded = false](ui::GestureRecognizer&) mutable {
        if (!std::exchange(reloaded, true))
            collection.reloadData();
    });
    hand.drag(inItem(1, 300), inItem(1, 100));
    EXPECT_EQ(dragged.states.back(), GestureState::Ended);
    EXPECT_THAT(list->tapped, IsEmpty());
}

} // namespace
} // namespace tessivo
