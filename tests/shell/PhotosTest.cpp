#include "UnsplashPicker/PhotoCell.h"
#include "UnsplashPicker/PhotoJson.h"
#include "UnsplashPicker/PickerFixture.h"
#include "UnsplashPicker/UnsplashPicker.h"
#include "shell/ControlWindow.h"

#include <QImage>

#include <algorithm>
#include <cmath>

namespace tessivo {
namespace {

using namespace unsplash;

/// Photos in the colour that their data name, such as "red".
class ColourImages final : public ImageCoding {
public:
    std::shared_ptr<const Bitmap> decode(std::string_view data, std::optional<PixelSize>) const override {
        const QColor color(QString::fromStdString(std::string(data)));
        if (!color.isValid())
            return nullptr;
        Bitmap bitmap{4, 3, {}};
        for (int pixel = 0; pixel < 12; ++pixel) {
            for (const int part : {color.red(), color.green(), color.blue(), 255})
                bitmap.pixels.push_back(static_cast<std::uint8_t>(part));
        }
        return std::make_shared<const Bitmap>(std::move(bitmap));
    }
    std::optional<std::string> jpeg(const Bitmap&, double) const override { return std::nullopt; }
    std::optional<std::string> png(const Bitmap&) const override { return std::nullopt; }
};

class Host final : public UnsplashPickerDelegate {
public:
    void photoPickerDidSelect(UnsplashPicker&, const Photos& photos) override { chosen = photos; }
    void photoPickerDidCancel(UnsplashPicker&) override { ++cancelled; }

    Photos chosen;
    int cancelled = 0;
};

/// The photo browser on a window, under real touches and keys; the network answers when the test says so.
class PhotosTest : public ControlWindow {
protected:
    PhotosTest() {
        mainScreen.resize({390, 700}, 1);
        open({.severalAtOnce = false});
    }
    ~PhotosTest() override { undraw(); }

    struct Wish {
        bool severalAtOnce;
    };
    void open(Wish wish) {
        UnsplashPickerConfiguration configuration("https://api.test");
        configuration.accessKey = "key";
        configuration.allowsMultipleSelection = wish.severalAtOnce;
        picker = UnsplashPicker::make(services, windowContext, configuration);
        picker->photoPickerDelegate = host;
        stack.top()->present(picker, false);
        drawing = &draw(*picker, "ScreenContent { anchors.fill: parent; screen: root.screen }");
        timeline.runPosted();
    }

    [[nodiscard]] UnsplashPickerViewController& screen() { return picker->photoPickerViewController(); }
    /// Whether an exchange whose address holds `mark` waits for its answer.
    [[nodiscard]] std::optional<std::size_t> waiting(const std::string& mark) const {
        const auto& all = http.exchanges();
        for (std::size_t index = all.size(); index-- > 0;) {
            if (all[index]->completion && all[index]->request.url.find(mark) != std::string::npos)
                return index;
        }
        return std::nullopt;
    }
    void answer(const std::string& mark, std::string body, int status = 200) {
        const auto exchange = waiting(mark);
        ASSERT_TRUE(exchange) << mark;
        http.answer(*exchange, HttpResponse{status, {}, std::move(body)});
        timeline.runPosted();
    }
    void showPhotos(int count) { answer("/collections/", photosJson(count)); }
    /// Until the window shows that colour at that place.
    [[nodiscard]] bool seen(QPoint place, QColor color) {
        return runUntil([&] { return window.grabWindow().pixelColor(place) == color; });
    }
    /// Into the middle of the photo of that number.
    [[nodiscard]] QPointF middleOfPhoto(int item) {
        const ui::Rect frame = screen().layout().frame(item);
        return {frame.midX(), frame.midY() - screen().collectionView.contentOffset().y};
    }

    fakes::PostedWorkQueue work{timeline};
    fakes::ScriptedHttpClient http;
    fakes::MemoryResponseCaches caches;
    NlohmannJson json;
    ColourImages images;
    JsonLocalizedTexts texts = pickerTexts("en");
    PickerServices services{PickerPlatform{console, timeline, work, http, json, images, caches, &texts}};
    std::shared_ptr<Host> host = std::make_shared<Host>();
    std::shared_ptr<UnsplashPicker> picker;
    QQuickItem* drawing = nullptr;
};

TEST_F(PhotosTest, ATapChoosesThePhotoUnderItAlsoAtTheRightEdge) {
    showPhotos(30);
    const ui::Rect second = screen().layout().frame(1);
    EXPECT_EQ(second.maxX(), 374) << "the grid keeps the margins that the window wants";
    hand.tapAt({372, middleOfPhoto(1).y()});
    ASSERT_EQ(host->chosen.size(), 1U);
    EXPECT_EQ(host->chosen.front()->identifier, "p2");
    EXPECT_TRUE(waiting("/photos/p2/download?client_id=key"));
}

TEST_F(PhotosTest, SeveralPhotosAreMarkedAndHandedOverByDone) {
    EXPECT_EQ(hand.find(QStringLiteral("Done")), nullptr) << "where one is chosen, it goes at once";
    hand.tap(QStringLiteral("Cancel"));
    open({.severalAtOnce = true});
    showPhotos(4);
    hand.tapAt(middleOfPhoto(0));
    hand.tapAt(middleOfPhoto(3));
    EXPECT_NE(hand.find(QStringLiteral("2 selected")), nullptr);
    const ui::Rect frame = screen().layout().frame(3);
    const QPointF mark = middleOfPhoto(3) + QPointF(frame.width / 2 - 20, frame.height / 2 - 12);
    EXPECT_TRUE(seen(mark.toPoint(), Qt::white));
    hand.tap(QStringLiteral("Done"));
    ASSERT_EQ(host->chosen.size(), 2U);
    EXPECT_EQ(host->chosen.back()->identifier, "p4");
}

TEST_F(PhotosTest, AWiderWindowHasRoomForAnotherColumn) {
    showPhotos(4);
    const double before = middleOfPhoto(1).y();
    drawing->setWidth(600);
    mainScreen.resize({600, 700}, 1);
    ASSERT_TRUE(runUntil([&] { return screen().layout().frame(2).maxX() > 580; }));
    EXPECT_EQ(middleOfPhoto(2).y(), middleOfPhoto(0).y()) << "the third stands in the first row";
    EXPECT_NE(middleOfPhoto(1).y(), before);
}

TEST_F(PhotosTest, TheLastPhotosCanBeScrolledOutFromUnderTheKeyboard) {
    showPhotos(12);
    const double bottom = screen().collectionView.contentSize().height - 700;
    mainScreen.setKeyboardHeight(300);
    ASSERT_TRUE(runUntil([&] {
        hand.drag({100, 650}, {100, 150});
        return screen().collectionView.contentOffset().y >= bottom + 290;
    }));
}

TEST_F(PhotosTest, ScrollingFetchesTheNextPage) {
    showPhotos(30);
    EXPECT_EQ(screen().collectionView.contentOffset().y, -112) << "the grid begins under the bar";
    for (int drag = 0; drag < 2; ++drag)
        hand.drag({100, 650}, {100, 150});
    ASSERT_TRUE(runUntil([&] {
        timeline.runPosted();
        return waiting("page=2").has_value();
    }));
    answer("page=2", photosJson(5, 31));
    EXPECT_EQ(screen().collectionView.numberOfItems(), 35);
}

TEST_F(PhotosTest, ALatePictureFadesInOverItsTint) {
    showPhotos(4);
    const QPoint first = middleOfPhoto(0).toPoint();
    EXPECT_TRUE(seen(first, QColor(0x33, 0x66, 0x99)));
    answer("i.test/p1?", "red");
    timeline.advance(Seconds(0.125));
    const QColor between = window.grabWindow().pixelColor(first);
    EXPECT_GT(between.red(), 0x33);
    EXPECT_LT(between.red(), 0xff);
    timeline.advance(Seconds(0.2));
    EXPECT_TRUE(seen(first, Qt::red));
    EXPECT_TRUE(seen(middleOfPhoto(1).toPoint(), QColor(0x33, 0x66, 0x99))) << "which is not there yet";
}

TEST_F(PhotosTest, TheNameCanBeReadOnAWhitePhoto) {
    showPhotos(1);
    answer("i.test/p1?", "white");
    timeline.advance(Seconds(1));
    ASSERT_TRUE(seen(middleOfPhoto(0).toPoint(), Qt::white));
    const auto luminance = [](QColor color) {
        const auto linear = [](double part) {
            return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
        };
        return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) +
               0.0722 * linear(color.blueF());
    };
    const ui::Rect frame = screen().layout().frame(0);
    const QPointF foot = middleOfPhoto(0) + QPointF(frame.width / 2 - 20, frame.height / 2);
    for (const int height : {10, 16, 22}) { // of the letters, which end well before the edge
        const QColor behind = window.grabWindow().pixelColor((foot - QPointF(0, height)).toPoint());
        EXPECT_GE(1.05 / (luminance(behind) + 0.05), 4.5) << "at " << height;
    }
}

TEST_F(PhotosTest, ACellThatComesBackShowsItsOwnPicture) {
    showPhotos(30);
    answer("i.test/p1?", "red");
    timeline.advance(Seconds(1));
    const QPoint first = middleOfPhoto(0).toPoint();
    ASSERT_TRUE(seen(first, Qt::red));
    screen().collectionView.setContentOffset({0, 1500});
    timeline.runPosted();
    ASSERT_TRUE(runUntil([&] { return !screen().collectionView.cellForItem(0); }));
    for (const auto& [item, cell] : screen().collectionView.visibleCells()) {
        const QPoint place = middleOfPhoto(item).toPoint();
        if (QRect(0, 120, 390, 580).contains(place)) {
            EXPECT_TRUE(seen(place, QColor(0x33, 0x66, 0x99))) << item;
        }
    }
    screen().collectionView.setContentOffset({0, -112});
    timeline.runPosted();
    EXPECT_TRUE(seen(first, Qt::red));
}

TEST_F(PhotosTest, SearchesByTheKeyboardAndClearingReturns) {
    showPhotos(30);
    hand.drag({100, 600}, {100, 300});
    hand.tap(QStringLiteral("Search photos"));
    ASSERT_TRUE(runUntil([&] { return screen().searchController.searchBar.isEditing(); }));
    hand.commit(QStringLiteral("sea"));
    EXPECT_EQ(screen().searchText(), std::nullopt) << "it waits for the return key";
    hand.press(Qt::Key_Return);
    timeline.runPosted();
    EXPECT_FALSE(screen().searchController.searchBar.isEditing());
    answer("query=sea&", R"({"results": )" + photosJson(3) + "}");
    EXPECT_EQ(screen().collectionView.numberOfItems(), 3);
    EXPECT_EQ(screen().collectionView.contentOffset().y, -112);
    hand.tap(QStringLiteral("Clear search"));
    ASSERT_TRUE(runUntil([&] { return screen().collectionView.numberOfItems() == 30; }));
    EXPECT_EQ(hand.find(QStringLiteral("Clear search")), nullptr);
}

TEST_F(PhotosTest, ScrollingTakesTheKeyboardAway) {
    showPhotos(30);
    hand.tap(QStringLiteral("Search photos"));
    ASSERT_TRUE(runUntil([&] { return screen().searchController.searchBar.isEditing(); }));
    hand.drag({100, 600}, {100, 300});
    EXPECT_FALSE(screen().searchController.searchBar.isEditing());
}

TEST_F(PhotosTest, SaysWhyThereIsNothingAndGoesOnWithTheNextSearch) {
    showPhotos(3);
    hand.tap(QStringLiteral("Search photos"));
    hand.commit(QStringLiteral("xyz"));
    hand.press(Qt::Key_Return);
    timeline.runPosted();
    answer("query=xyz&", R"({"results": []})");
    ASSERT_TRUE(runUntil([&] { return hand.find(QStringLiteral("No results")) != nullptr; }));
    hand.tap(QStringLiteral("Clear search"));
    ASSERT_TRUE(runUntil([&] { return hand.find(QStringLiteral("No results")) == nullptr; }));
    EXPECT_EQ(screen().collectionView.numberOfItems(), 3);
}

TEST_F(PhotosTest, TheKeyboardChoosesAndCancels) {
    showPhotos(4);
    auto* third = [&] {
        for (auto* item : drawnItems(*window.contentItem())) {
            if (accessibleName(*item) == QLatin1String("Ada L") &&
                item->y() == screen().layout().frame(2).y && item->x() == screen().layout().frame(2).x)
                return item;
        }
        return static_cast<QQuickItem*>(nullptr);
    }();
    ASSERT_NE(third, nullptr);
    third->forceActiveFocus();
    hand.press(Qt::Key_Return);
    ASSERT_EQ(host->chosen.size(), 1U);
    EXPECT_EQ(host->chosen.front()->identifier, "p3");
    hand.press(Qt::Key_Escape);
    EXPECT_EQ(host->cancelled, 0) << "a picker that has gone takes no key";
}

TEST_F(PhotosTest, EscapeCancels) {
    showPhotos(4);
    hand.press(Qt::Key_Escape);
    EXPECT_EQ(host->cancelled, 1);
}

TEST_F(PhotosTest, TheTabKeyWalksThroughThePhotosAndScrollsAlong) {
    showPhotos(12);
    hand.tap(QStringLiteral("Search photos"));
    for (int step = 0; step < 10; ++step) {
        const auto* focused = window.activeFocusItem();
        if (accessibleName(*focused) == QLatin1String("Ada L")) {
            EXPECT_GE(focused->mapToScene({}).y(), 111) << "out from under the bar";
        }
        hand.press(Qt::Key_Tab);
    }
    EXPECT_GT(screen().collectionView.contentOffset().y, 0);
}

TEST_F(PhotosTest, AFingerThatRestsShowsThePhotoLarge) {
    showPhotos(2);
    answer("i.test/p1?", "red");
    hand.hold(middleOfPhoto(0), [&] {
        timeline.advance(Seconds(0.6));
        return stack.top() != picker.get();
    });
    EXPECT_EQ(stack.top()->screenName(), "UnsplashPickerPreviewViewController");
    EXPECT_TRUE(host->chosen.empty());
    draw(*stack.top(), "ScreenContent { anchors.fill: parent; screen: root.screen }");
    EXPECT_TRUE(seen({195, 350}, Qt::red));
    hand.press(Qt::Key_Escape);
    EXPECT_EQ(stack.top(), picker.get());
}

} // namespace
} // namespace tessivo
