#include "DemoPhotos.h"
#include "Interface/Animation.h"
#include "Interface/PresentationStack.h"
#include "UnsplashPicker/PhotoCell.h"
#include "UnsplashPicker/PickerServices.h"
#include "adapters/qtnetwork/QtApplication.h"
#include "fakes/RecordingConsole.h"
#include "fakes/Timeline.h"
#include "qt/QtMainQueue.h"
#include "qtimage/QtImageCoding.h"
#include "qtnetwork/QtHttpClient.h"
#include "qtnetwork/QtResponseCaches.h"
#include "standard/ThreadWorkQueue.h"
#include "support/PickerHost.h"
#include "support/PlainScreen.h"
#include "support/TemporaryFolder.h"
#include "json/NlohmannJson.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <atomic>
#include <thread>

namespace tessivo::unsplash {
namespace {

using testing::Contains;

/// The real decoder, which records whether the main thread ever had to wait for it.
class WatchedImages final : public ImageCoding {
public:
    std::shared_ptr<const Bitmap> decode(std::string_view data,
                                         std::optional<PixelSize> covering) const override {
        if (std::this_thread::get_id() == mainThread_)
            heldUpMainThread = true;
        return images_.decode(data, covering);
    }
    std::optional<std::string> jpeg(const Bitmap&, double) const override { return std::nullopt; }
    std::optional<std::string> png(const Bitmap&) const override { return std::nullopt; }

    mutable std::atomic<bool> heldUpMainThread = false;

private:
    QtImageCoding images_;
    std::thread::id mainThread_ = std::this_thread::get_id();
};

/// The photo browser with its real parts, without a window, against the demo service.
class PhotosEndToEndTest : public testing::Test {
protected:
    PhotosEndToEndTest() {
        UnsplashPickerConfiguration configuration(service.address());
        configuration.accessKey = "any key";
        picker = UnsplashPicker::make(services, window, configuration);
        picker->photoPickerDelegate = host;
        stack.setRoot(std::make_shared<PlainScreen>(window));
        stack.top()->present(picker, false);
    }

    [[nodiscard]] UnsplashPickerViewController& screen() { return picker->photoPickerViewController(); }
    [[nodiscard]] bool showsPhotos(int count) {
        return runUntil([&] { return screen().collectionView.numberOfItems() == count; });
    }
    [[nodiscard]] bool picturesAreThere() {
        return runUntil([&] {
            return std::ranges::all_of(screen().collectionView.visibleCells(), [](const auto& entry) {
                return static_cast<PhotoCell&>(*entry.second).photoView.imageView.image().isSet();
            });
        });
    }
    void scrollTo(double y) { screen().collectionView.setContentOffset({0, y}); }
    /// Scrolls past every photo, as a finger does.
    void scrollToEnd() {
        const double end = screen().collectionView.contentSize().height - mainScreen.height();
        for (double y = screen().collectionView.contentOffset().y; y < end; y += 100)
            scrollTo(y);
        scrollTo(end);
    }
    void search(const std::string& text) {
        screen().searchController.searchBar.editTo(text);
        screen().searchController.searchBar.pressReturn();
    }
    /// The state without photos that a search ends in.
    [[nodiscard]] std::optional<EmptyViewState> stateAfter(const std::string& text) {
        search(text);
        EXPECT_TRUE(runUntil([&] { return screen().emptyView.superview() != nullptr; })) << text;
        return screen().emptyView.state();
    }
    [[nodiscard]] std::ptrdiff_t timesTold(const std::string& line) {
        return std::ranges::count(service.told(), line);
    }

    static constexpr int photoCount = 65;

    QCoreApplication& application = qtApplication();
    DemoPhotos service{photoCount};
    TemporaryFolder folder;
    fakes::RecordingConsole console;
    fakes::Timeline timeline;
    NlohmannJson json;
    WatchedImages images;
    QtResponseCaches caches{folder / "caches"};
    JsonLocalizedTexts texts = pickerTexts("en");
    QtMainQueue mainQueue;
    ThreadWorkQueue background;
    QtHttpClient http;
    PickerServices services{
        PickerPlatform{console, mainQueue, background, http, json, images, caches, &texts}};
    ui::MainScreen mainScreen{{390, 844}};
    ui::Animations animations{timeline, timeline};
    ui::WindowContext window{mainScreen, animations};
    ui::PresentationStack stack{window};
    std::shared_ptr<PickerHost> host = std::make_shared<PickerHost>();
    std::shared_ptr<UnsplashPicker> picker;
};

TEST_F(PhotosEndToEndTest, BrowsesTheCollectionToItsEnd) {
    ASSERT_TRUE(showsPhotos(30));
    ASSERT_TRUE(picturesAreThere());
    for (const int count : {60, photoCount}) {
        scrollToEnd();
        ASSERT_TRUE(showsPhotos(count));
    }
    scrollToEnd();
    EXPECT_TRUE(picturesAreThere());
    EXPECT_FALSE(screen().dataSource().canFetchMore());
    EXPECT_FALSE(images.heldUpMainThread);
}

TEST_F(PhotosEndToEndTest, SearchesAndReturns) {
    ASSERT_TRUE(showsPhotos(30));
    search("sea");
    ASSERT_TRUE(showsPhotos(7)); // every tenth of 65
    for (const auto& photo : *screen().dataSource().items())
        EXPECT_EQ(photo->identifier.back(), '0');
    EXPECT_TRUE(picturesAreThere());
    screen().searchController.clearButton.tap();
    EXPECT_TRUE(showsPhotos(30));
}

TEST_F(PhotosEndToEndTest, SaysWhyThereIsNothingToSee) {
    ASSERT_TRUE(showsPhotos(30));
    EXPECT_EQ(stateAfter("none"), EmptyViewState::noResults);
    EXPECT_EQ(stateAfter("error"), EmptyViewState::serverError);
    EXPECT_EQ(stateAfter("limit"), EmptyViewState::serverError);
    EXPECT_EQ(stateAfter("lost"), EmptyViewState::noInternetConnection);
    service.end();
    EXPECT_EQ(stateAfter("forest"), EmptyViewState::serverError) << "nobody listens";
}

TEST_F(PhotosEndToEndTest, TellsTheServiceOfTheChoiceOnce) {
    ASSERT_TRUE(showsPhotos(30));
    screen().collectionView.tapItem(2);
    ASSERT_EQ(host->chosen->size(), 1U);
    EXPECT_EQ(host->chosen->front()->identifier, "demo-2");
    EXPECT_TRUE(runUntil([&] { return timesTold("download demo-2") > 0; }));
    EXPECT_EQ(timesTold("download demo-2"), 1);
}

TEST_F(PhotosEndToEndTest, ShowsKnownPicturesWithoutTheService) {
    ASSERT_TRUE(showsPhotos(30));
    ASSERT_TRUE(picturesAreThere());
    scrollTo(1500);
    ASSERT_EQ(screen().collectionView.cellForItem(0), nullptr);
    ASSERT_TRUE(picturesAreThere());
    EXPECT_EQ(timesTold("picture demo-0"), 1);
    service.end();
    scrollTo(0);
    ASSERT_NE(screen().collectionView.cellForItem(0), nullptr);
    EXPECT_TRUE(picturesAreThere());
    EXPECT_FALSE(images.heldUpMainThread);
}

} // namespace
} // namespace tessivo::unsplash
