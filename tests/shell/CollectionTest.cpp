#include "Interface/CollectionView.h"
#include "Interface/Label.h"
#include "shell/ControlWindow.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <set>

namespace tessivo {
namespace {

constexpr int itemCount = 10'000;
constexpr double rowHeight = 100;

class NumberCell final : public ui::CollectionViewCell {
public:
    ui::Label label{controls, "label"};
};

class Numbers final : public ui::CollectionViewDataSource, public ui::CollectionViewDelegate {
public:
    int numberOfItems(ui::CollectionView&) override { return count; }
    std::shared_ptr<ui::CollectionViewCell> cellForItem(ui::CollectionView& collection, int item) override {
        auto cell = std::dynamic_pointer_cast<NumberCell>(collection.dequeueReusableCell("number"));
        cell->label.setText(std::to_string(item));
        return cell;
    }
    ui::Size sizeForItem(ui::CollectionView& collection, int) override {
        return {collection.bounds().width, rowHeight};
    }
    void didSelectItem(ui::CollectionView&, int item) override { selected.push_back(item); }

    int count = itemCount;
    std::vector<int> selected;
};

class DrawnCollection : public ControlWindow {
protected:
    DrawnCollection() {
        collection.registerCell("number", [] { return std::make_shared<NumberCell>(); });
        collection.dataSource = numbers;
        collection.delegate = numbers;
        collection.reloadData();
        root = &draw(*screen, R"(
            CollectionFlick {
                id: flick
                anchors.fill: parent
                collection: root.screen.control("collection") as CollectionItem
                delegate: Text {
                    required property CellItem cell
                    readonly property LabelItem label: cell.control("label") as LabelItem
                    objectName: "cell"
                    x: cell.x
                    y: cell.y
                    width: cell.width
                    height: cell.height
                    text: label.text
                    Accessible.name: text
                    MouseArea { anchors.fill: parent; onClicked: flick.collection.tapItem(parent.cell.item) }
                }
            })");
    }

    ~DrawnCollection() override { undraw(); }

    [[nodiscard]] std::set<QQuickItem*> drawings() const {
        std::set<QQuickItem*> cells;
        for (auto* item : drawnItems(*root)) {
            if (item->objectName() == QLatin1String("cell"))
                cells.insert(item);
        }
        return cells;
    }
    [[nodiscard]] std::set<int> drawnNumbers() const {
        std::set<int> drawn;
        for (const auto* cell : drawings())
            drawn.insert(cell->property("text").toInt());
        return drawn;
    }
    [[nodiscard]] static std::set<int> from(int first, int last) {
        std::set<int> all;
        for (int number = first; number <= last; ++number)
            all.insert(number);
        return all;
    }

    std::shared_ptr<Numbers> numbers = std::make_shared<Numbers>();
    ui::CollectionView collection{screen->controls, "collection",
                                  std::make_unique<ui::LineLayout>(ui::LineLayout::Axis::Vertical, 0)};
    QQuickItem* root = nullptr;
};

TEST_F(DrawnCollection, OnlyTheCellsOnTheScreenAreDrawnWhereverItIsScrolled) {
    EXPECT_EQ(drawnNumbers(), from(0, 6));
    hand.drag({195, 600}, {195, 250});
    ASSERT_TRUE(runUntil([&] { return collection.visibleCells().begin()->first >= 2; }));
    EXPECT_LE(drawings().size(), 8U);
    collection.scrollToItem(5'000); // its middle comes to the middle of the window
    ASSERT_TRUE(runUntil([&] { return drawnNumbers() == from(4'997, 5'003); }));
    collection.scrollToItem(itemCount - 1);
    ASSERT_TRUE(runUntil([&] { return drawnNumbers() == from(9'993, 9'999); }));
}

TEST_F(DrawnCollection, TheKeyboardFindsTheCellsInTheirOrder) {
    for (const int item : {0, 3, 4, 2, 50, 48, 9'999, 1}) {
        collection.scrollToItem(item);
        ASSERT_TRUE(runUntil([&] { return drawnNumbers().contains(item); }));
        std::vector<int> order;
        for (const auto* drawing : drawnItems(*root)) {
            if (drawing->objectName() == QLatin1String("cell"))
                order.push_back(drawing->property("text").toInt());
        }
        EXPECT_TRUE(std::ranges::is_sorted(order)) << "at item " << item;
    }
}

TEST_F(DrawnCollection, AReloadKeepsTheDrawingOfEachCell) {
    collection.scrollToItem(300);
    ASSERT_TRUE(runUntil([&] { return drawnNumbers().contains(300); }));
    const auto before = drawings();
    collection.reloadData();
    EXPECT_EQ(drawings(), before);
    numbers->count = 3;
    collection.reloadData();
    ASSERT_TRUE(runUntil([&] { return drawnNumbers() == from(0, 2); }));
}

TEST_F(DrawnCollection, TheCellOfADeletedItemFadesWhereItStood) {
    screen->view().addSubview(collection);
    const auto second = [&]() -> const QQuickItem* {
        for (const auto* drawing : drawings()) {
            if (drawing->property("text").toInt() == 1)
                return drawing;
        }
        return nullptr;
    };
    collection.deleteItem(1);
    timeline.advance(Seconds(0.15));
    const auto* fading = second();
    ASSERT_NE(fading, nullptr);
    EXPECT_EQ(fading->y(), rowHeight);
    EXPECT_LT(fading->opacity(), 0.9);
    timeline.advance(Seconds(0.3));
    EXPECT_EQ(second(), nullptr);
    EXPECT_EQ(drawings().size(), 7U);
    collection.removeFromSuperview();
}

TEST_F(DrawnCollection, ATapSelectsTheItemUnderIt) {
    collection.scrollToItem(42);
    ASSERT_TRUE(runUntil([&] { return drawnNumbers().contains(42); }));
    hand.tap(QStringLiteral("42"));
    EXPECT_THAT(numbers->selected, testing::ElementsAre(42));
}

} // namespace
} // namespace tessivo
