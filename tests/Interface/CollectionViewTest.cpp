#include "Interface/CollectionView.h"

#include "Interface/Animation.h"
#include "fakes/Timeline.h"

#include <gmock/gmock.h>

namespace tessivo::ui {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class NumberedCell final : public CollectionViewCell {
public:
    int item = -1;
    int reuses = 0;
    void prepareForReuse() override {
        CollectionViewCell::prepareForReuse();
        ++reuses;
    }
};

class Numbers final : public CollectionViewDataSource, public CollectionViewDelegate {
public:
    int count = 0;
    int made = 0;
    std::vector<std::string> told;

    int numberOfItems(CollectionView&) override { return count; }
    std::shared_ptr<CollectionViewCell> cellForItem(CollectionView& collection, int item) override {
        const auto cell = std::static_pointer_cast<NumberedCell>(collection.dequeueReusableCell("cell"));
        cell->item = item;
        return cell;
    }
    Size sizeForItem(CollectionView&, int) override { return {80, 40}; }
    void didSelectItem(CollectionView&, int item) override { told.push_back("+" + std::to_string(item)); }
    void didDeselectItem(CollectionView&, int item) override { told.push_back("-" + std::to_string(item)); }
};

class CollectionTest : public testing::Test {
protected:
    CollectionTest() {
        collection.registerCell("cell", [this] {
            ++numbers->made;
            return std::make_shared<NumberedCell>();
        });
        collection.dataSource = numbers;
        collection.delegate = numbers;
        collection.setFrame({0, 0, 100, 200}); // four cards and the spaces between them
    }

    void show(int count) {
        numbers->count = count;
        collection.reloadData();
    }

    std::vector<int> visible() {
        std::vector<int> items;
        for (const auto& [item, cell] : collection.visibleCells()) {
            EXPECT_EQ(static_cast<NumberedCell&>(*cell).item, item);
            items.push_back(item);
        }
        return items;
    }

    ControlRegistry registry;
    std::shared_ptr<Numbers> numbers = std::make_shared<Numbers>();
    CollectionView collection{registry, "list",
                              std::make_unique<LineLayout>(LineLayout::Axis::Vertical, 10, 5)};
};

TEST_F(CollectionTest, OnlyWhatIsOnTheScreenHasACell) {
    show(10'000);
    EXPECT_THAT(visible(), ElementsAre(0, 1, 2, 3));
    EXPECT_EQ(collection.contentSize().height, 10 + 10'000 * 40 + 9'999 * 10);
    EXPECT_EQ(collection.cellForItem(0)->frame(), (Rect{10, 5, 80, 40}));
    for (double y = 0; y < 400'000; y += 170)
        collection.scrolledTo({0, y});
    EXPECT_LE(numbers->made, 12) << "scrolling reuses cells";
}

TEST_F(CollectionTest, TheVisiblePartDecidesToThePoint) {
    show(100);
    const std::tuple<double, int, int> cases[] = {
        {0, 0, 3},     // 5..45, 55..95, 105..145, 155..195
        {5, 0, 3},     // the fifth begins at 205
        {6, 0, 4},     // and comes in
        {44, 0, 4},    // the first still shows its last point
        {45, 1, 4},    // and is gone
        {4815, 96, 99} // the end
    };
    for (const auto& [y, first, last] : cases) {
        collection.scrolledTo({0, y});
        EXPECT_EQ(collection.visibleCells().begin()->first, first) << y;
        EXPECT_EQ(collection.visibleCells().rbegin()->first, last) << y;
    }
}

TEST_F(CollectionTest, AReloadGivesEachItemItsCellBack) {
    show(3);
    const auto before = collection.visibleCells();
    collection.reloadData();
    EXPECT_EQ(collection.visibleCells(), before);
    EXPECT_EQ(static_cast<NumberedCell&>(*before.at(0)).reuses, 1);
    // Also when the pool holds other cells, and when items are inserted or deleted.
    show(100);
    collection.scrolledTo({0, 500});
    collection.scrolledTo({0, 700});
    const auto scrolled = collection.visibleCells();
    collection.reloadData();
    EXPECT_EQ(collection.visibleCells(), scrolled);
    show(16);
    for (const auto& [item, cell] : collection.visibleCells()) {
        if (scrolled.contains(item)) {
            EXPECT_EQ(cell, scrolled.at(item)) << item;
        }
    }
    show(0);
    EXPECT_THAT(visible(), IsEmpty());
    EXPECT_EQ(collection.contentSize().height, 0);
}

TEST_F(CollectionTest, ContentThatShrinksIsScrolledBackBeforeAnyCellIsMade) {
    std::vector<double> requests;
    const auto scrolling =
        collection.onScrollRequest([&](Point offset, bool) { requests.push_back(offset.y); });
    collection.setRoomAtEnds(0, 30);
    show(100);
    collection.scrolledTo({0, 4830}); // the end, with its room
    collection.reloadData();
    EXPECT_THAT(requests, IsEmpty());
    collection.scrolledTo({0, 4850}); // beyond it, as a finger pulls
    collection.reloadData();
    EXPECT_THAT(requests, IsEmpty());
    numbers->made = 0;
    show(10);
    EXPECT_THAT(visible(), ElementsAre(6, 7, 8, 9));
    EXPECT_THAT(requests, ElementsAre(10 * 50 + 30 - 200));
    EXPECT_EQ(numbers->made, 0);
}

TEST_F(CollectionTest, ADeletedItemTakesOnlyItsOwnCell) {
    show(4);
    const auto second = collection.cellForItem(1);
    numbers->count = 3;
    collection.deleteItem(0);
    EXPECT_EQ(collection.cellForItem(0), second);
    EXPECT_EQ(second->frame().y, 5);
    EXPECT_EQ(collection.visibleCells().size(), 3U);
    collection.deleteItem(7);
    EXPECT_EQ(collection.numberOfItems(), 3);
}

class DeletionOnAScreenTest : public CollectionTest {
protected:
    DeletionOnAScreenTest() { collection.setAnimations(&animations); }

    void remove(int item) {
        --numbers->count;
        collection.deleteItem(item);
    }
    [[nodiscard]] double drawnTop(int item) { return collection.cellForItem(item)->drawnFrame().y; }

    fakes::Timeline line;
    Animations animations{line, line};
};

TEST_F(DeletionOnAScreenTest, TheDeletedCellFadesInItsPlaceWhileTheOthersCloseTheGap) {
    show(6);
    const auto gone = collection.cellForItem(1);
    const auto next = collection.cellForItem(2);
    remove(1);
    EXPECT_EQ(collection.cellForItem(1), next);
    EXPECT_EQ(next->frame().y, 55);
    EXPECT_EQ(collection.itemFor(*gone), std::nullopt);
    EXPECT_THAT(collection.leavingCells(), ElementsAre(gone));
    EXPECT_EQ(collection.hitTest({50, 70}), &next->contentView) << "touches go to the item that is there";
    line.advance(Seconds(0.15));
    EXPECT_EQ(gone->drawnFrame().y, 55);
    EXPECT_NEAR(gone->drawnValue(AnimatableProperty::Alpha), 0.5, 0.1);
    EXPECT_EQ(drawnTop(0), 5);
    EXPECT_NEAR(drawnTop(1), 80, 5);
    EXPECT_NEAR(drawnTop(3), 180, 5) << "a cell that comes onto the screen moves along with the others";
    line.advance(Seconds(0.2));
    EXPECT_THAT(collection.leavingCells(), IsEmpty());
    EXPECT_EQ(gone->superview(), nullptr);
    EXPECT_EQ(gone->alpha(), 1);
    EXPECT_EQ(drawnTop(1), 55);
    EXPECT_FALSE(line.framesAreAskedFor());
}

TEST_F(DeletionOnAScreenTest, ALeavingCellIsHandedOutOnlyOnceItHasLeft) {
    show(3);
    const auto first = collection.cellForItem(0);
    remove(0);
    remove(0);
    EXPECT_EQ(collection.leavingCells().size(), 2U);
    numbers->count = 3;
    collection.reloadData();
    for (const auto& [item, cell] : collection.visibleCells())
        EXPECT_NE(cell, first) << item;
    line.advance(Seconds(1));
    numbers->count = 4;
    collection.reloadData();
    std::vector<std::shared_ptr<CollectionViewCell>> cells;
    for (const auto& [item, cell] : collection.visibleCells())
        cells.push_back(cell);
    EXPECT_THAT(cells, testing::Contains(first));
    EXPECT_EQ(first->drawnValue(AnimatableProperty::Alpha), 1);
}

TEST_F(DeletionOnAScreenTest, ACollectionMayGoWhileACellLeaves) {
    auto list = std::make_unique<CollectionView>(
        registry, "other", std::make_unique<LineLayout>(LineLayout::Axis::Vertical, 10));
    list->registerCell("cell", [] { return std::make_shared<NumberedCell>(); });
    list->dataSource = numbers;
    list->delegate = numbers;
    list->setFrame({0, 0, 100, 200});
    list->setAnimations(&animations);
    numbers->count = 2;
    list->reloadData();
    list->deleteItem(0);
    list.reset();
    line.advance(Seconds(1));
    EXPECT_FALSE(line.framesAreAskedFor());
}

TEST_F(CollectionTest, InsertedItemsPushTheOthersOn) {
    show(2);
    const auto second = collection.cellForItem(1);
    numbers->count = 3;
    collection.insertItems(1, 1);
    EXPECT_EQ(collection.cellForItem(2), second);
    EXPECT_EQ(second->frame().y, 105);
    EXPECT_EQ(collection.visibleCells().size(), 3U);
}

TEST_F(CollectionTest, ATapSelectsOneOrChangesOverOneOfMany) {
    show(4);
    collection.tapItem(1);
    collection.tapItem(2);
    EXPECT_THAT(collection.selectedItems(), ElementsAre(2));
    EXPECT_FALSE(collection.cellForItem(1)->isSelected());
    collection.allowsMultipleSelection = true;
    collection.tapItem(3);
    collection.tapItem(2);
    EXPECT_THAT(collection.selectedItems(), ElementsAre(3));
    EXPECT_THAT(numbers->told, ElementsAre("+1", "+2", "+3", "-2"));
    collection.tapItem(9);
    collection.reloadData();
    EXPECT_THAT(collection.selectedItems(), IsEmpty());
}

TEST_F(CollectionTest, ASelectedItemIsMarkedWhenItComesBack) {
    show(100);
    collection.selectItem(1);
    collection.scrolledTo({0, 2000});
    collection.scrolledTo({0, 0});
    EXPECT_TRUE(collection.cellForItem(1)->isSelected());
    EXPECT_FALSE(collection.cellForItem(0)->isSelected());
    EXPECT_THAT(numbers->told, IsEmpty());
}

TEST_F(CollectionTest, AStripLiesSideways) {
    CollectionView strip(registry, "strip",
                         std::make_unique<LineLayout>(LineLayout::Axis::Horizontal, 16, 16));
    strip.registerCell("cell", [] { return std::make_shared<NumberedCell>(); });
    strip.dataSource = numbers;
    strip.delegate = numbers;
    strip.setFrame({0, 0, 200, 60});
    numbers->count = 30;
    strip.reloadData();
    EXPECT_EQ(strip.cellForItem(1)->frame(), (Rect{112, 10, 80, 40}));
    EXPECT_EQ(strip.contentSize().width, 32 + 30 * 80 + 29 * 16);
    strip.scrollToItem(29);
    EXPECT_NE(strip.cellForItem(29), nullptr);
}

} // namespace
} // namespace tessivo::ui
