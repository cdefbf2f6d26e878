#include "UnsplashPicker/WaterfallLayout.h"

#include "fakes/RecordingConsole.h"

#include <gtest/gtest.h>

#include <random>

namespace tessivo::unsplash {
namespace {

using ui::ItemRange;
using ui::Rect;

class Sizes final : public WaterfallLayoutDelegate {
public:
    ui::Size waterfallSizeForItem(int item) override { return sizes[item % sizes.size()]; }

    std::vector<ui::Size> sizes{{100, 100}};
};

class WaterfallLayoutTest : public testing::Test {
protected:
    WaterfallLayoutTest() { layout.delegate = sizes; }

    void prepare(int count, double width) { layout.prepare(count, {}, {width, 600}); }

    fakes::RecordingConsole console;
    std::shared_ptr<Sizes> sizes = std::make_shared<Sizes>();
    WaterfallLayout layout{console};
};

TEST_F(WaterfallLayoutTest, TheWidthDecidesTheColumns) {
    struct Case {
        double width;
        int columns;
        double columnWidth; ///< as drawn
        double height;      ///< of the content, with one square item
    };
    const Case cases[] = {
        {181.9, 0, 0, 0},
        {182, 1, 182, 16 + 182 + 1 + 44 + 1},
        {347, 1, 347, 16 + 347 + 1 + 44 + 1},
        {348, 2, 166, 16 + 166 + 16 + 44 + 16},
        {514, 3, 160, 16 + 160 + 16 + 44 + 16},
        {1024, 3, 330, 16 + 330 + 16 + 44 + 16},
    };
    for (const auto& [width, columns, columnWidth, height] : cases) {
        prepare(1, width);
        EXPECT_EQ(layout.contentSize(), (ui::Size{width, height})) << width;
        EXPECT_EQ(layout.frames().empty(), columns == 0) << width;
        EXPECT_EQ(layout.pagingViewFrame().has_value(), columns > 0) << width;
        prepare(4, width);
        int inFirstRow = 0;
        for (const Rect& frame : layout.frames()) {
            inFirstRow += frame.y == 16;
            EXPECT_EQ(frame.width, columnWidth) << width;
        }
        EXPECT_EQ(inFirstRow, columns) << width;
    }
}

TEST_F(WaterfallLayoutTest, EachItemGoesToTheShortestColumn) {
    sizes->sizes = {{100, 200}, {100, 50}, {100, 100}, {200, 100}};
    prepare(5, 514); // columns of 160 2/3
    const std::vector<Rect> expected{{0, 16, 160, 321},
                                     {176 + 2.0 / 3, 16, 160, 80},
                                     {(160 + 2.0 / 3 + 16) * 2, 16, 160, 160},
                                     {176 + 2.0 / 3, 112, 160, 80},
                                     {(160 + 2.0 / 3 + 16) * 2, 192, 160, 321}};
    ASSERT_EQ(layout.frames().size(), expected.size());
    for (std::size_t item = 0; item < expected.size(); ++item) {
        EXPECT_NEAR(layout.frames()[item].x, expected[item].x, 1e-9) << item;
        EXPECT_EQ(layout.frames()[item].y, expected[item].y) << item;
        EXPECT_EQ(layout.frames()[item].size(), expected[item].size()) << item;
    }
    EXPECT_EQ(layout.pagingViewFrame(), (Rect{0, 192 + 321 + 16, 514, 44}));
    sizes->sizes = {{1, 1}};
    prepare(4, 514);
    EXPECT_EQ(layout.frames()[3].x, 0) << "of columns that are level, the first";
}

TEST_F(WaterfallLayoutTest, MarginsNarrowSeveralColumnsButNotOne) {
    layout.setLayoutMargins({0, 10, 0, 20});
    prepare(2, 348);
    EXPECT_EQ(layout.contentSize().width, 318);
    EXPECT_EQ(layout.frames()[0], (Rect{10, 16, 151, 151}));
    EXPECT_EQ(layout.frames()[1].x, 10 + 151 + 16);
    EXPECT_EQ(layout.pagingViewFrame()->width, 348);
    prepare(1, 200);
    EXPECT_EQ(layout.contentSize().width, 200);
    EXPECT_EQ(layout.frames()[0], (Rect{0, 16, 200, 200}));
}

TEST_F(WaterfallLayoutTest, WithoutItemsOnlyTheInsetAndTheSpacingStay) {
    prepare(0, 514);
    EXPECT_EQ(layout.contentSize().height, 32);
    EXPECT_EQ(layout.pagingViewFrame(), std::nullopt);
    prepare(0, 182);
    EXPECT_EQ(layout.contentSize().height, 17);
    layout.delegate.reset();
    prepare(3, 514);
    EXPECT_EQ(layout.contentSize().height, 0);
}

TEST_F(WaterfallLayoutTest, ShowsARunOfItems) {
    prepare(6, 348); // two columns of 166: rows at 16, 198, 380
    EXPECT_EQ(layout.itemsIn({0, 0, 348, 17}), (ItemRange{0, 2}));
    EXPECT_EQ(layout.itemsIn({0, 0, 348, 16}), (ItemRange{0, 6})) << "touching is not meeting: all";
    EXPECT_EQ(layout.itemsIn({0, 190, 348, 100}), (ItemRange{2, 4}));
    EXPECT_EQ(layout.itemsIn({0, 100, 100, 400}), (ItemRange{0, 5})) << "the left column, and all between";
    EXPECT_EQ(layout.itemsIn({0, 9000, 348, 100}), (ItemRange{0, 6}));
    prepare(0, 348);
    EXPECT_EQ(layout.itemsIn({0, 0, 348, 100}), (ItemRange{0, 0}));
}

TEST_F(WaterfallLayoutTest, FindsTheSameItemsAsAPlainScan) {
    std::mt19937 random(7);
    std::uniform_int_distribution<int> length(0, 400);
    sizes->sizes.clear();
    for (int item = 0; item < 101; ++item)
        sizes->sizes.push_back({static_cast<double>(length(random)), static_cast<double>(length(random))});
    for (const bool hasEmptyPhotos : {false, true}) {
        if (!hasEmptyPhotos) {
            for (auto& size : sizes->sizes)
                size.width = std::max(size.width, 1.0);
        } else {
            sizes->sizes[90] = {0, 0};
            sizes->sizes[95] = {0, 10};
        }
        prepare(300, 600);
        for (int round = 0; round < 3000; ++round) {
            const Rect visible{length(random) * 2.0 - 100, length(random) * 100.0 - 500, length(random) * 1.0,
                               length(random) * 3.0};
            int first = -1;
            int last = 299;
            for (int item = 0; item < 300; ++item) {
                if (layout.frames()[static_cast<std::size_t>(item)].intersects(visible)) {
                    first = first < 0 ? item : first;
                    last = item;
                }
            }
            ASSERT_EQ(layout.itemsIn(visible), (ItemRange{std::max(first, 0), last + 1})) << round;
        }
    }
}

TEST_F(WaterfallLayoutTest, AnItemWithoutAPlaceStopsTheProgram) {
    prepare(2, 348);
    EXPECT_EQ(layout.frame(1), layout.frames()[1]);
    EXPECT_THROW((void)layout.frame(2), fakes::ProgramStopped);
    EXPECT_THROW((void)layout.frame(-1), fakes::ProgramStopped);
}

TEST_F(WaterfallLayoutTest, OnlyAnotherWidthNeedsOtherFrames) {
    prepare(2, 348);
    EXPECT_FALSE(layout.shouldInvalidateLayout({348, 900}));
    EXPECT_TRUE(layout.shouldInvalidateLayout({349, 600}));
}

} // namespace
} // namespace tessivo::unsplash
