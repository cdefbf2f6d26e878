#include "Interface/Label.h"
#include "SwipeCells/SwipeCollectionViewCell.h"
#include "bridge/BitmapImage.h"
#include "fakes/FixedWidthTexts.h"
#include "qtimage/QtImageCoding.h"
#include "shell/ControlWindow.h"

#include <QAccessible>
#include <QTest>

#include <gmock/gmock.h>

#include <functional>
#include <string>
#include <vector>

namespace tessivo {
namespace {

using swipe::SwipeAction;
using swipe::SwipeActions;
using swipe::SwipeActionsOrientation;
using swipe::SwipeState;
using testing::ElementsAre;

constexpr double cardHeight = 120;

/// A cell with what the drawing of a card shows.
class CardCell final : public swipe::SwipeCollectionViewCell {
public:
    explicit CardCell(swipe::SwipeEnvironment environment) : SwipeCollectionViewCell(std::move(environment)) {
        contentView.setBackgroundColor(ui::ColorRef::of({0, 0, 1, 1}));
        contentView.addSubview(photoImage);
        contentView.addSubview(timeLabel);
        contentView.addSubview(eventInformationLabel);
    }

    ui::ImageView photoImage{controls, "photoImage"};
    ui::Label timeLabel{controls, "timeLabel"};
    ui::Label eventInformationLabel{controls, "eventInformationLabel"};
};

class CardOwner final : public ui::CollectionViewDataSource,
                        public ui::CollectionViewDelegate,
                        public swipe::SwipeCollectionViewCellDelegate,
                        public std::enable_shared_from_this<CardOwner> {
public:
    int numberOfItems(ui::CollectionView&) override { return count; }
    std::shared_ptr<ui::CollectionViewCell> cellForItem(ui::CollectionView& collection, int item) override {
        auto cell = std::static_pointer_cast<CardCell>(collection.dequeueReusableCell("card"));
        cell->delegate = weak_from_this();
        cell->setAccessibilityName("Card " + std::to_string(item));
        return cell;
    }
    ui::Size sizeForItem(ui::CollectionView& collection, int) override {
        return {collection.bounds().width, cardHeight};
    }
    void didSelectItem(ui::CollectionView&, int item) override { note("tap", item); }
    std::optional<ui::Menu> contextMenuForItem(ui::CollectionView&, int item, ui::Point) override {
        return ui::Menu{{{"Choose", "trash", [this, item] { note("menu", item); }, {}}}};
    }
    std::optional<SwipeActions> editActions(ui::CollectionView&, int, SwipeActionsOrientation side) override {
        if (side == SwipeActionsOrientation::Left)
            return std::nullopt;
        return SwipeActions{action("Delete"), action("Share")};
    }
    swipe::SwipeOptions editActionsOptions(ui::CollectionView&, int, SwipeActionsOrientation) override {
        return options;
    }

    int count = 8;
    swipe::SwipeOptions options;
    std::vector<std::string> heard;

private:
    std::shared_ptr<SwipeAction> action(const char* name) {
        auto made = std::make_shared<SwipeAction>(swipe::SwipeActionStyle::Default, std::nullopt,
                                                  [this, name](SwipeAction&, int item) { note(name, item); });
        made->accessibilityLabel = name;
        return made;
    }
    void note(const std::string& what, int item) { heard.push_back(what + " " + std::to_string(item)); }
};

class SwipedCardTest : public ControlWindow {
protected:
    SwipedCardTest() {
        owner->options.minimumButtonWidth = 60;
        collection.registerCell("card", [this] {
            return std::make_shared<CardCell>(
                swipe::SwipeEnvironment{animations, timeline, texts, nullptr, {}});
        });
        collection.dataSource = owner;
        collection.delegate = owner;
        screen->view().addSubview(collection);
        collection.reloadData();
        draw(*screen, R"(
            CollectionFlick {
                anchors.fill: parent
                focus: true
                collection: root.screen.control("collection") as CollectionItem
                delegate: EventCell {}
            })");
    }
    ~SwipedCardTest() override { undraw(); }

    [[nodiscard]] CardCell& cell(int item) { return dynamic_cast<CardCell&>(*collection.cellForItem(item)); }
    [[nodiscard]] double movedBy(int item) { return cell(item).contentView.frame().x; }
    [[nodiscard]] QQuickItem* card(int item) const { return hand.find(QStringLiteral("Card %1").arg(item)); }
    [[nodiscard]] static QPointF inCard(int item, double x) { return {x, item * cardHeight + 60}; }
    void settle() { timeline.advance(Seconds(3)); }
    void open(int item) {
        hand.drag(inCard(item, 300), inCard(item, 150));
        settle();
        ASSERT_EQ(cell(item).state(), SwipeState::Right);
    }
    [[nodiscard]] QColor colorAt(QPointF point) {
        return window.grabWindow().pixelColor((point * window.effectiveDevicePixelRatio()).toPoint());
    }

    fakes::FixedWidthTexts texts;
    std::shared_ptr<CardOwner> owner = std::make_shared<CardOwner>();
    ui::CollectionView collection{screen->controls, "collection",
                                  std::make_unique<ui::LineLayout>(ui::LineLayout::Axis::Vertical, 0.0)};
    QPointingDevice* fingers = QTest::createTouchDevice();
};

TEST_F(SwipedCardTest, TheCardFollowsTheFingerAndResistsBeyondItsButtons) {
    // The first ten points only tell a drag from a tap; past 120 the card goes four tenths of the way.
    QTest::touchEvent(&window, fingers).press(0, inCard(1, 350).toPoint());
    const auto moveTo = [&](double x, double expected) {
        QTest::touchEvent(&window, fingers).move(0, inCard(1, x).toPoint());
        EXPECT_TRUE(runUntil([&] { return std::abs(movedBy(1) - expected) < 0.01; }))
            << x << " " << movedBy(1);
    };
    moveTo(330, 0);
    ASSERT_TRUE(runUntil([&] { return cell(1).state() == SwipeState::Dragging; }));
    moveTo(280, -50);
    moveTo(210, -120);
    moveTo(110, -120 - 0.4 * 100);
    moveTo(360, 0.2 * 30); // beyond its place it hardly moves
    QTest::touchEvent(&window, fingers).release(0, inCard(1, 360).toPoint());
}

TEST_F(SwipedCardTest, ATouchBesideAnOpenCardOrAScrollClosesAndDoesNothingElse) {
    open(1);
    hand.tapAt(inCard(3, 100));
    EXPECT_EQ(cell(1).state(), SwipeState::AnimatingToCenter);
    settle();
    open(1);
    hand.tapAt(inCard(1, 100));
    settle();
    EXPECT_EQ(cell(1).state(), SwipeState::Center);
    open(1);
    hand.drag(inCard(1, 100), inCard(1, 100) - QPointF(0, 80));
    settle();
    EXPECT_EQ(cell(1).state(), SwipeState::Center);
    EXPECT_EQ(movedBy(1), 0);
    EXPECT_THAT(owner->heard, testing::IsEmpty());
}

TEST_F(SwipedCardTest, ScrollingOfAnyKindClosesAnOpenCard) {
    const std::pair<const char*, std::function<void()>> kinds[] = {
        {"wheel",
         [this] {
             for (int notch = 0; notch < 2; ++notch)
                 hand.turnMouseWheel(inCard(3, 100), -1);
         }},
        {"touchpad",
         [this] {
             hand.slideOnTouchpad(inCard(3, 100), {0, -60});
         }},
        {"keyboard", [this] {
             card(0)->forceActiveFocus(Qt::TabFocusReason);
             for (int item = 1; item < 6; ++item)
                 hand.press(Qt::Key_Down);
         }}};
    for (const auto& [kind, scroll] : kinds) {
        collection.scrollToItem(0, false);
        ASSERT_TRUE(runUntil([this] { return collection.contentOffset().y == 0; }));
        open(1);
        scroll();
        ASSERT_TRUE(runUntil([this] { return collection.contentOffset().y > 20; })) << kind;
        settle();
        EXPECT_EQ(cell(1).state(), SwipeState::Center) << kind;
    }
}

TEST_F(SwipedCardTest, TwoFingersSidewaysOnATouchpadSwipeTheCardUnderThePointer) {
    hand.slideOnTouchpad(inCard(1, 200), {-120, 10});
    settle();
    EXPECT_EQ(cell(1).state(), SwipeState::Right);
    hand.slideOnTouchpad(inCard(1, 100), {120, 0});
    settle();
    EXPECT_EQ(cell(1).state(), SwipeState::Center);
    EXPECT_EQ(collection.contentOffset().y, 0);
    EXPECT_THAT(owner->heard, testing::IsEmpty());
}

TEST_F(SwipedCardTest, TheButtonUnderTheMouseIsTinted) {
    open(1);
    const QPointF middle = inCard(1, 390 - 30);
    const QColor before = colorAt(middle - QPointF(25, 30));
    for (const QPointF place : {middle + QPointF(1, 0), middle})
        QTest::mouseMove(&window, place.toPoint());
    EXPECT_TRUE(runUntil([&] { return colorAt(middle - QPointF(25, 30)) != before; }));
    QTest::mouseMove(&window, inCard(1, 100).toPoint());
    EXPECT_TRUE(runUntil([&] { return colorAt(middle - QPointF(25, 30)) == before; }));
}

TEST_F(SwipedCardTest, TheButtonsAreUnderTheFingerWhereTheyAreSeen) {
    open(2);
    hand.tapAt(inCard(2, 390 - 90));
    hand.tapAt(inCard(2, 390 - 30));
    hand.tapAt(inCard(2, 390 - 30)); // quick, and in the same place
    EXPECT_THAT(owner->heard, ElementsAre("Share 2", "Delete 2", "Delete 2"));
}

TEST_F(SwipedCardTest, ASecondFingerChangesNothing) {
    QTest::touchEvent(&window, fingers).press(0, inCard(1, 350).toPoint());
    QTest::touchEvent(&window, fingers).move(0, inCard(1, 330).toPoint());
    ASSERT_TRUE(runUntil([&] { return cell(1).state() == SwipeState::Dragging; }));
    QTest::touchEvent(&window, fingers).stationary(0).press(1, inCard(3, 350).toPoint());
    QTest::touchEvent(&window, fingers).stationary(0).move(1, inCard(3, 200).toPoint());
    QTest::touchEvent(&window, fingers).move(0, inCard(1, 270).toPoint()).stationary(1);
    EXPECT_TRUE(runUntil([&] { return movedBy(1) == -60; })) << movedBy(1);
    EXPECT_EQ(cell(3).state(), SwipeState::Center);
    QTest::touchEvent(&window, fingers).stationary(0).release(1, inCard(3, 200).toPoint());
    QTest::touchEvent(&window, fingers).release(0, inCard(1, 270).toPoint());
    settle();
    EXPECT_EQ(cell(1).state(), SwipeState::Right);
    EXPECT_THAT(owner->heard, testing::IsEmpty());
}

TEST_F(SwipedCardTest, ADeletedCardIsCutByItsMaskAndGoesWhileTheNextMovesUp) {
    owner->options.expansionStyle = swipe::SwipeExpansionStyle::deleteAtFill();
    hand.drag(inCard(1, 380), inCard(1, 5));
    ASSERT_FALSE(collection.leavingCells().empty());
    QQuickItem* const gone = card(1);
    ASSERT_NE(gone, nullptr);
    timeline.advance(Seconds(0.2));
    ASSERT_FALSE(collection.leavingCells().empty());
    const auto* leaving = collection.leavingCells().front().get();
    const double height = leaving->contentView.mask()->drawnFrame().height;
    EXPECT_GT(height, 5);
    EXPECT_LT(height, 100);
    EXPECT_LT(gone->opacity(), 0.9);
    settle();
    EXPECT_TRUE(runUntil([&] { return card(1) == nullptr; }));
    EXPECT_EQ(card(2)->y(), cardHeight);
    EXPECT_EQ(colorAt(inCard(1, 200)), QColor(Qt::blue));
}

TEST_F(SwipedCardTest, TheMaskOfADeletedCardClosesUpwards) {
    owner->count = 2; // no card moves up over its place
    collection.reloadData();
    owner->options.expansionStyle = swipe::SwipeExpansionStyle::deleteAtFill();
    const QColor ground = colorAt(inCard(4, 200));
    hand.drag(inCard(1, 380), inCard(1, 5));
    for (const double moment : {0.1, 0.06, 0.06}) {
        timeline.advance(Seconds(moment));
        ASSERT_FALSE(collection.leavingCells().empty());
        const auto* mask = collection.leavingCells().front()->contentView.mask();
        ASSERT_NE(mask, nullptr);
        const double edge = cardHeight + mask->drawnFrame().height;
        ASSERT_GT(edge, cardHeight + 5);
        ASSERT_LT(edge, 2 * cardHeight - 5);
        EXPECT_TRUE(runUntil([&] {
            const QImage drawn = window.grabWindow();
            const double scale = window.effectiveDevicePixelRatio();
            const auto at = [&](double y) { return drawn.pixelColor((QPointF(200, y) * scale).toPoint()); };
            return at(cardHeight + 2) != ground && at(edge - 3) != ground && at(edge + 3) == ground &&
                   at(2 * cardHeight - 2) == ground;
        })) << edge;
    }
    settle();
    EXPECT_TRUE(runUntil([&] { return colorAt(inCard(1, 200)) == ground; }));
}

TEST_F(SwipedCardTest, TheShadowOfAnOpenCardFallsOnItsButtons) {
    open(1);
    const double edge = 390 - 120;
    const QColor ground = colorAt(inCard(1, edge + 16));
    EXPECT_TRUE(runUntil([&] { return colorAt(inCard(1, edge + 1)).lightness() < ground.lightness(); }))
        << colorAt(inCard(1, edge + 1)).name().toStdString() << ground.name().toStdString();
}

TEST_F(SwipedCardTest, ThePictureOfACardHoldsItsPhotoAndItsTextAtTheScreensScale) {
    QImage photo(390, 120, QImage::Format_RGBA8888);
    photo.fill(QColor("#101060"));
    for (int y = 0; y < photo.height(); ++y) {
        for (int x = 0; x < 195; ++x)
            photo.setPixelColor(x, y, QColor("#600000"));
    }
    auto& shared = cell(1);
    shared.setCornerRadius(24);
    shared.photoImage.setCornerRadius(24);
    shared.photoImage.setContentMode(ui::ContentMode::AspectFill);
    shared.photoImage.setImage({{}, shell::toBitmap(photo)});
    shared.timeLabel.setTextColor(ui::ColorRef::white());
    shared.timeLabel.setText("In 365 days");
    for (const bool opened : {false, true}) {
        if (opened)
            open(1);
        EXPECT_TRUE(runUntil([&] { return colorAt(inCard(1, 100)) != QColor(Qt::blue); }));
        std::optional<std::shared_ptr<const Bitmap>> taken;
        snapshots.snapshot(shared, [&](auto picture) { taken = picture; });
        ASSERT_TRUE(runUntil([&] { return taken.has_value(); }));
        ASSERT_TRUE(*taken);
        const std::string png = QtImageCoding().png(**taken).value();
        const QImage saved = QImage::fromData(QByteArray::fromStdString(png), "PNG");
        const double scale = window.effectiveDevicePixelRatio();
        ASSERT_EQ(saved.size(), (QSizeF(390, cardHeight) * scale).toSize());
        const auto at = [&](double x, double y) {
            return saved.pixelColor((QPointF(x, y) * scale).toPoint());
        };
        EXPECT_EQ(at(60, 20), QColor("#600000"));
        EXPECT_EQ(at(380, 100), QColor("#101060")) << "and not the buttons beside it";
        EXPECT_EQ(at(0, 0).alpha(), 0);
        EXPECT_EQ(at(389, 119).alpha(), 0) << "round corners, no shadow";
        int white = 0; // in the upper half, where the time stands
        for (int y = 0; y < saved.height() / 2; ++y) {
            for (int x = 0; x < saved.width(); ++x)
                white += saved.pixelColor(x, y).lightness() > 240 ? 1 : 0;
        }
        EXPECT_GT(white, 30 * scale * scale);
        EXPECT_LT(white, 800 * scale * scale);
    }
}

TEST_F(SwipedCardTest, TheKeyboardWalksOpensTheMenuDeletesAndCloses) {
    card(0)->forceActiveFocus(Qt::TabFocusReason);
    hand.press(Qt::Key_Down);
    hand.press(Qt::Key_Down);
    EXPECT_TRUE(card(2)->hasActiveFocus());
    hand.press(Qt::Key_Up);
    EXPECT_TRUE(card(1)->hasActiveFocus());
    hand.press(Qt::Key_Up);
    hand.press(Qt::Key_Up);
    EXPECT_TRUE(card(0)->hasActiveFocus()) << "there is none above the first";
    hand.press(Qt::Key_Return);
    hand.press(Qt::Key_Delete);
    EXPECT_THAT(owner->heard, ElementsAre("tap 0", "Delete 0"));
    for (const auto& [key, modifier] :
         {std::pair(Qt::Key_Menu, Qt::NoModifier), {Qt::Key_F10, Qt::ShiftModifier}}) {
        owner->heard.clear();
        EXPECT_TRUE(runUntil([this] { return card(0)->hasActiveFocus(); })) << key;
        hand.press(key, modifier);
        ASSERT_TRUE(runUntil([this] { return hand.find(QStringLiteral("Choose")) != nullptr; })) << key;
        hand.press(Qt::Key_Return);
        EXPECT_THAT(owner->heard, ElementsAre("menu 0"));
        ASSERT_TRUE(runUntil([this] { return hand.find(QStringLiteral("Choose")) == nullptr; }));
    }
    cell(3).showSwipe(SwipeActionsOrientation::Right, false);
    hand.press(Qt::Key_Escape);
    EXPECT_EQ(cell(3).state(), SwipeState::AnimatingToCenter);
}

TEST_F(SwipedCardTest, TheKeyboardWalksBeyondTheScreen) {
    card(0)->forceActiveFocus(Qt::TabFocusReason);
    for (int item = 1; item < owner->count; ++item) {
        hand.press(Qt::Key_Down);
        ASSERT_NE(card(item), nullptr);
        EXPECT_TRUE(card(item)->hasActiveFocus()) << item;
    }
    EXPECT_GT(collection.contentOffset().y, 100);
}

TEST_F(SwipedCardTest, AssistiveTechnologyFindsTheCardsActionsOnTheCard) {
    auto* const found = QAccessible::queryAccessibleInterface(card(1));
    ASSERT_NE(found, nullptr);
    EXPECT_EQ(found->role(), QAccessible::Button);
    EXPECT_EQ(found->parent()->role(), QAccessible::List);
    EXPECT_GE(found->parent()->indexOfChild(found), 0);
    EXPECT_EQ(found->rect().size(), QSize(390, 120));
    auto* const acts = found->actionInterface();
    ASSERT_NE(acts, nullptr);
    EXPECT_EQ(acts->actionNames(), QStringList({QAccessibleActionInterface::pressAction(),
                                                QStringLiteral("Delete"), QStringLiteral("Share")}));
    for (const auto& name : acts->actionNames())
        acts->doAction(name);
    EXPECT_THAT(owner->heard, ElementsAre("tap 1", "Delete 1", "Share 1"));
    EXPECT_EQ(found->childCount(), 0);
    open(1);
    ASSERT_EQ(found->childCount(), 2) << "the buttons of the open row";
    EXPECT_EQ(found->child(0)->text(QAccessible::Name), QStringLiteral("Share"));
    EXPECT_EQ(found->indexOfChild(found->child(1)), 1);
    EXPECT_EQ(found->child(0)->parent(), found);
}

} // namespace
} // namespace tessivo
