#include "UnsplashPicker/UnsplashPicker.h"

#include "Interface/Animation.h"
#include "Interface/PresentationStack.h"
#include "PhotoJson.h"
#include "PickerFixture.h"
#include "UnsplashPicker/PhotoCell.h"
#include "UnsplashPicker/UnsplashPickerPreviewViewController.h"
#include "support/PickerHost.h"
#include "support/PlainScreen.h"

#include <gmock/gmock.h>

namespace tessivo::unsplash {
namespace {

using testing::HasSubstr;

/// The picker on a screen with room for two columns.
class UnsplashPickerTest : public PickerTest {
protected:
    UnsplashPickerTest() {
        configuration.accessKey = "key";
        stack.setRoot(std::make_shared<PlainScreen>(window));
    }

    /// Presents a picker; the first page is under way then.
    UnsplashPickerViewController& open() {
        picker = UnsplashPicker::make(services, window, configuration);
        picker->photoPickerDelegate = host;
        stack.top()->present(picker, false);
        timeline.runPosted();
        return picker->photoPickerViewController();
    }
    /// Presents a picker that shows that many editorial photos.
    UnsplashPickerViewController& openWith(int count) {
        auto& screen = open();
        answerPage(count);
        return screen;
    }
    void answerPage(int count, int first = 1) { answer(pageExchange(), 200, photosJson(count, first)); }
    void answer(std::size_t exchange, int status, std::string body) {
        http.answer(exchange, HttpResponse{status, {}, std::move(body)});
        timeline.runPosted();
    }
    /// The newest exchange for a page of photos.
    [[nodiscard]] std::size_t pageExchange() const { return newest("per_page="); }
    [[nodiscard]] std::size_t newest(const std::string& mark) const {
        for (std::size_t index = http.exchanges().size(); index-- > 0;) {
            if (http.exchanges()[index]->request.url.find(mark) != std::string::npos)
                return index;
        }
        throw std::out_of_range(mark);
    }
    void search(const std::string& text) {
        auto& bar = picker->photoPickerViewController().searchController.searchBar;
        bar.beginEditing();
        bar.editTo(text);
        bar.pressReturn();
        timeline.runPosted();
    }
    [[nodiscard]] std::shared_ptr<PhotoCell> cell(int item) {
        return std::static_pointer_cast<PhotoCell>(
            picker->photoPickerViewController().collectionView.cellForItem(item));
    }
    [[nodiscard]] bool isEmptyViewShown() const {
        return picker->photoPickerViewController().emptyView.superview() != nullptr;
    }

    ui::MainScreen mainScreen{{390, 600}};
    ui::Animations animations{timeline, timeline};
    ui::WindowContext window{mainScreen, animations};
    ui::PresentationStack stack{window};
    std::shared_ptr<PickerHost> host = std::make_shared<PickerHost>();
    std::shared_ptr<UnsplashPicker> picker;
    UnsplashPickerConfiguration configuration;
};

TEST_F(UnsplashPickerTest, ShowsTheEditorialCollection) {
    auto& screen = open();
    EXPECT_THAT(http.exchanges().at(0)->request.url, HasSubstr("/collections/317099/photos?"));
    EXPECT_TRUE(screen.spinner.isAnimating());
    EXPECT_EQ(screen.searchController.searchBar.placeholder(), "Search photos");
    answerPage(30);
    EXPECT_FALSE(screen.spinner.isAnimating());
    EXPECT_EQ(screen.collectionView.numberOfItems(), 30);
    EXPECT_EQ(cell(0)->photoView.userNameLabel.text(), "Ada L");
    EXPECT_EQ(cell(0)->photoView.userNameLabel.alpha(), 1);
    EXPECT_EQ(screen.titleLabel.text(), "Unsplash");
}

TEST_F(UnsplashPickerTest, FetchesTheNextPageNearTheEnd) {
    auto& screen = openWith(30);
    const auto pages = [&] {
        return std::ranges::count_if(http.exchanges(), [](const auto& exchange) {
            return exchange->request.url.find("per_page=") != std::string::npos;
        });
    };
    EXPECT_EQ(pages(), 1);
    for (double offset = 0; pages() == 1 && offset < 1000; ++offset) {
        screen.collectionView.setContentOffset({0, offset});
        timeline.runPosted();
    }
    EXPECT_NE(cell(11), nullptr) << "item 11 of 30 asks";
    EXPECT_EQ(cell(12), nullptr);
    answerPage(5, 31);
    EXPECT_EQ(screen.collectionView.numberOfItems(), 35);
    EXPECT_FALSE(screen.dataSource().canFetchMore());
}

TEST_F(UnsplashPickerTest, AskingForMoreThanThereIsComesToRest) {
    auto& screen = openWith(19);
    EXPECT_EQ(screen.collectionView.numberOfItems(), 19); // item 0 of 19 asked for more, in vain
    screen.collectionView.reloadData();
    timeline.runPosted();
    EXPECT_NE(cell(0), nullptr);
    EXPECT_FALSE(isEmptyViewShown());
}

TEST_F(UnsplashPickerTest, TheFootTellsWhetherMoreIsComing) {
    auto& screen = openWith(30);
    EXPECT_FALSE(screen.pagingView.isLoading());
    screen.collectionView.setContentOffset({0, 400});
    const double bottom = screen.collectionView.contentSize().height - 600;
    screen.collectionView.setContentOffset({0, bottom});
    EXPECT_TRUE(screen.pagingView.isLoading());
    EXPECT_EQ(screen.pagingView.frame(), *screen.layout().pagingViewFrame());
    timeline.runPosted();
    answerPage(0);
    EXPECT_FALSE(screen.pagingView.isLoading()) << "nothing more has come, nor will it";
}

TEST_F(UnsplashPickerTest, SearchesOnlyWhenAsked) {
    auto& screen = openWith(30);
    auto& bar = screen.searchController.searchBar;
    bar.editTo("sea");
    timeline.runPosted();
    EXPECT_THAT(http.exchanges()[pageExchange()]->request.url, HasSubstr("/collections/"));
    screen.collectionView.setSafeAreaInsets({47, 0, 34, 0});
    search("sea");
    EXPECT_EQ(screen.searchText(), "sea");
    EXPECT_THAT(http.exchanges()[pageExchange()]->request.url, HasSubstr("query=sea&"));
    EXPECT_EQ(screen.collectionView.numberOfItems(), 0);
    EXPECT_EQ(screen.collectionView.contentOffset().y, -47);
    answer(pageExchange(), 200, R"({"results": )" + photosJson(3) + "}");
    EXPECT_EQ(screen.collectionView.numberOfItems(), 3);
}

TEST_F(UnsplashPickerTest, ClearingTheSearchBringsTheEditorialListBack) {
    auto& screen = openWith(30);
    const auto pages = pageExchange();
    search("sea");
    EXPECT_FALSE(screen.searchController.clearButton.isHidden());
    EXPECT_NE(pageExchange(), pages);
    screen.searchController.clearButton.tap();
    EXPECT_TRUE(screen.searchController.clearButton.isHidden());
    EXPECT_EQ(screen.searchText(), std::nullopt);
    EXPECT_EQ(screen.collectionView.numberOfItems(), 30);
    search("sea");
    search("");
    EXPECT_EQ(screen.collectionView.numberOfItems(), 30) << "so does a search for nothing";
    EXPECT_TRUE(http.exchanges()[newest("/search/")]->isCancelled);
}

TEST_F(UnsplashPickerTest, TheSpinnerStopsWhenASearchIsCleared) {
    auto& screen = openWith(30);
    search("sea");
    EXPECT_TRUE(screen.spinner.isAnimating());
    screen.searchController.clearButton.tap();
    timeline.runPosted();
    EXPECT_FALSE(screen.spinner.isAnimating());
}

TEST_F(UnsplashPickerTest, ReturnInAnEmptyFieldLetsThePageThatLoadsComeIn) {
    auto& screen = openWith(30);
    screen.dataSource().fetchItems();
    timeline.runPosted();
    search("");
    answerPage(30, 31);
    EXPECT_FALSE(isEmptyViewShown());
    EXPECT_EQ(screen.collectionView.numberOfItems(), 60);
}

TEST_F(UnsplashPickerTest, ASearchWhileAPageLoadsShowsNoErrorAndEndsNoPaging) {
    auto& screen = openWith(30);
    auto& bar = screen.searchController.searchBar;
    const auto searchAndReturn = [&](bool beforeTheFetchStarts) {
        screen.dataSource().fetchItems();
        if (!beforeTheFetchStarts)
            timeline.runPosted();
        bar.editTo("sea");
        bar.pressReturn(); // cancels the page, whose end comes after the return
        screen.searchController.clearButton.tap();
        timeline.runPosted();
        EXPECT_FALSE(isEmptyViewShown());
        EXPECT_TRUE(screen.dataSource().canFetchMore());
    };
    searchAndReturn(true);
    searchAndReturn(false);
    screen.dataSource().fetchItems();
    search("sea");
    screen.searchController.clearButton.tap(); // here its end came before the return
    screen.dataSource().fetchItems();
    timeline.runPosted();
    answerPage(30, 31);
    EXPECT_EQ(screen.collectionView.numberOfItems(), 60);
}

TEST_F(UnsplashPickerTest, SaysWhyThereIsNothingToSee) {
    const auto network = [](int code) { return Error{std::string(urlErrorDomain), code, ""}; };
    struct Case {
        Result<HttpResponse> answer;
        EmptyViewState state;
        const char* title;
    };
    const Case cases[] = {
        {HttpResponse{200, {}, "[]"}, EmptyViewState::noResults, "No results"},
        {HttpResponse{500, {}, ""}, EmptyViewState::serverError, "The service did not answer"},
        {HttpResponse{401, {}, ""}, EmptyViewState::serverError, "The service did not answer"},
        {HttpResponse{200, {}, "<html>"}, EmptyViewState::serverError, "The service did not answer"},
        {network(-1001), EmptyViewState::serverError, "The service did not answer"},
        {network(-1005), EmptyViewState::noInternetConnection, "No internet connection"},
        {network(-1009), EmptyViewState::noInternetConnection, "No internet connection"},
        {network(-1020), EmptyViewState::noInternetConnection, "No internet connection"},
        {Error{"Other", -1009, ""}, EmptyViewState::serverError, "The service did not answer"},
    };
    for (const auto& [result, state, title] : cases) {
        auto& screen = open();
        http.answer(pageExchange(), result);
        timeline.runPosted();
        EXPECT_EQ(screen.emptyView.state(), state);
        EXPECT_EQ(screen.emptyView.titleLabel.text(), title);
        EXPECT_NE(screen.emptyView.descriptionLabel.text(), "");
        EXPECT_TRUE(isEmptyViewShown());
        EXPECT_FALSE(screen.spinner.isAnimating());
        screen.emptyView.setState(std::nullopt);
        EXPECT_EQ(screen.emptyView.titleLabel.text(), "");
        screen.cancelBarButtonTapped();
    }
}

TEST_F(UnsplashPickerTest, AChoiceIsHandedOnAndToldToTheService) {
    openWith(3).collectionView.tapItem(1);
    ASSERT_TRUE(host->chosen);
    ASSERT_EQ(host->chosen->size(), 1u);
    EXPECT_EQ(host->chosen->front()->identifier, "p2");
    EXPECT_EQ(http.exchanges().back()->request.url, "https://api.test/photos/p2/download?client_id=key");
    EXPECT_TRUE(http.exchanges().back()->request.headers.empty());
    EXPECT_EQ(stack.top()->screenName(), "PlainScreen");
}

TEST_F(UnsplashPickerTest, SeveralAreChosenWithDone) {
    configuration.allowsMultipleSelection = true;
    auto& screen = openWith(3);
    EXPECT_FALSE(screen.doneBarButtonItem.isEnabled());
    screen.collectionView.tapItem(2);
    screen.collectionView.tapItem(0);
    EXPECT_EQ(screen.titleLabel.text(), "2 selected");
    EXPECT_EQ(cell(0)->checkmarkView.alpha(), 1);
    EXPECT_EQ(cell(0)->photoView.alpha(), 0.7);
    screen.collectionView.tapItem(0);
    EXPECT_EQ(screen.titleLabel.text(), "1 selected");
    EXPECT_EQ(cell(0)->checkmarkView.alpha(), 0);
    screen.collectionView.tapItem(1);
    screen.doneBarButtonItem.tap();
    ASSERT_EQ(host->chosen->size(), 2u);
    EXPECT_EQ(host->chosen->front()->identifier, "p2");
}

TEST_F(UnsplashPickerTest, CancellingClosesItAndEndsItsFetch) {
    auto& screen = open();
    screen.cancelBarButtonItem.tap();
    EXPECT_EQ(host->cancelled, 1);
    EXPECT_EQ(stack.top()->screenName(), "PlainScreen");
    std::weak_ptr<UnsplashPicker> gone = picker;
    picker.reset();
    timeline.advance(Seconds(1));
    EXPECT_TRUE(gone.expired());
    EXPECT_EQ(http.running(), 0u);
}

TEST_F(UnsplashPickerTest, AFetchGoesOnUnderAnotherScreenAndEndsWithASearch) {
    open();
    const auto over = std::make_shared<PlainScreen>(window);
    picker->present(over, false);
    over->dismiss(false);
    timeline.runPosted();
    EXPECT_EQ(http.exchanges().size(), 1u);
    EXPECT_EQ(http.running(), 1u);
    search("sea");
    EXPECT_EQ(http.running(), 1u);
    EXPECT_EQ(http.exchanges().size(), 2u);
}

TEST_F(UnsplashPickerTest, AConfiguredQueryTakesThePlaceOfTheSearchBar) {
    configuration.query = "mountains";
    auto& screen = open();
    EXPECT_EQ(screen.searchController.searchBar.superview(), nullptr);
    ASSERT_EQ(http.exchanges().size(), 1u);
    EXPECT_THAT(http.exchanges()[0]->request.url, HasSubstr("query=mountains&"));
}

TEST_F(UnsplashPickerTest, ThumbnailsAreAskedForAtTheirWidthAndComeOutOfTheCache) {
    mainScreen.resize({390, 600}, 2.6);
    auto& screen = openWith(3);
    const auto thumbnail = newest("i.test/p1");
    EXPECT_EQ(http.exchanges()[thumbnail]->request.url, "https://i.test/p1?w=1080&w=187.0&dpr=2");
    EXPECT_EQ(http.exchanges()[thumbnail]->request.timeout, Seconds(60));
    EXPECT_EQ(cell(0)->photoView.imageView.backgroundColor().value, (Color{0.2, 0.4, 0.6, 1}));
    answer(thumbnail, 200, "4x3");
    EXPECT_EQ(cell(0)->photoView.imageView.image().bitmap->width, 4);
    EXPECT_TRUE(animations.isAnimating()) << "a fresh picture fades in";
    timeline.advance(Seconds(0.3));
    EXPECT_FALSE(animations.isAnimating());

    const auto asked = http.exchanges().size();
    screen.collectionView.reloadData();
    timeline.runPosted();
    EXPECT_TRUE(cell(0)->photoView.imageView.image().isSet());
    EXPECT_FALSE(animations.isAnimating()) << "a known one does not";
    EXPECT_EQ(http.exchanges().size(), asked + 2) << "only the two that have not come yet";
    EXPECT_EQ(caches.openings,
              (std::vector<fakes::MemoryResponseCaches::Opening>{{"unsplash", 52428800, 104857600}}));

    mainScreen.resize({600, 600}, 2.6);
    timeline.runPosted();
    EXPECT_THAT(http.exchanges()[newest("i.test/p1")]->request.url, HasSubstr("w=189.0"));
    EXPECT_TRUE(cell(0)->photoView.imageView.image().isSet()) << "the former one stays until it comes";
}

TEST_F(UnsplashPickerTest, ALatePictureDoesNotLandOnAReusedCell) {
    auto& screen = openWith(30);
    const auto first = cell(0);
    const auto exchange = newest("i.test/p1?");
    // The answer is already in when the cell is reused.
    http.answer(exchange, HttpResponse{200, {}, "4x3"});
    screen.collectionView.setContentOffset({0, 1500});
    ASSERT_EQ(cell(0), nullptr);
    timeline.runPosted();
    for (const auto& [item, visible] : screen.collectionView.visibleCells())
        EXPECT_FALSE(static_cast<PhotoCell&>(*visible).photoView.imageView.image().isSet()) << item;
    EXPECT_FALSE(first->photoView.imageView.image().isSet());
    EXPECT_TRUE(caches.bodies.empty()) << "nobody wants it any more, so it is not decoded";
}

TEST_F(UnsplashPickerTest, AFlingDecodesOnlyWhatIsStillOnTheScreenWhenItsTurnComes) {
    auto& screen = openWith(30);
    const std::string first = http.exchanges()[newest("i.test/p1?")]->request.url;
    for (int photo = 1; photo <= 30; ++photo)
        caches.bodies["https://i.test/p" + std::to_string(photo) + first.substr(first.find('?'))] = "4x3";
    screen.collectionView.setContentOffset({0, 1500});
    timeline.runPosted();
    images.decoded = 0;
    // From a screen with five rows to one with four, before any picture of the first has had its turn.
    screen.collectionView.setContentOffset({0, 150});
    const auto passed = screen.collectionView.visibleCells().size();
    screen.collectionView.setContentOffset({0, 1425});
    ASSERT_LT(screen.collectionView.visibleCells().size(), passed);
    timeline.runPosted();
    EXPECT_EQ(images.decoded, std::ssize(screen.collectionView.visibleCells()));
    for (const auto& [item, visible] : screen.collectionView.visibleCells())
        EXPECT_TRUE(static_cast<PhotoCell&>(*visible).photoView.imageView.image().isSet()) << item;
}

TEST_F(UnsplashPickerTest, BrokenPicturesStayPlaceholders) {
    openWith(1);
    answer(newest("i.test/p1"), 200, "no picture");
    EXPECT_FALSE(cell(0)->photoView.imageView.image().isSet());
    EXPECT_TRUE(caches.bodies.empty());
    EXPECT_EQ(picker->photoPickerViewController().makePreview(0), nullptr);
}

TEST_F(UnsplashPickerTest, ALongPressShowsThePictureThatIsThere) {
    auto& screen = openWith(1);
    answer(newest("i.test/p1"), 200, "4x3");
    EXPECT_FALSE(screen.didHoldItem(screen.collectionView, 1)) << "there is none";
    EXPECT_TRUE(screen.didHoldItem(screen.collectionView, 0));
    auto& preview = dynamic_cast<UnsplashPickerPreviewViewController&>(*stack.top());
    EXPECT_EQ(preview.imageView.image().bitmap->height, 3);
    preview.dismiss();
    EXPECT_EQ(stack.top(), picker.get());
}

TEST_F(UnsplashPickerTest, MakesRoomForTheKeyboard) {
    auto& screen = openWith(30);
    screen.collectionView.setSafeAreaInsets({47, 0, 34, 0});
    mainScreen.setKeyboardHeight(300);
    EXPECT_EQ(screen.collectionView.contentInset().bottom, 266);
    mainScreen.setKeyboardHeight(0);
    EXPECT_EQ(screen.collectionView.contentInset().bottom, 0);
    screen.searchController.searchBar.beginEditing();
    screen.collectionView.panGestureRecognizer()->begin({10, 10}, {0, -20}, {0, 0});
    EXPECT_FALSE(screen.searchController.searchBar.isEditing());
}

TEST_F(UnsplashPickerTest, AWindowThatNarrowsKeepsTheGridSound) {
    auto& screen = openWith(30);
    mainScreen.resize({150, 300}, 1);
    EXPECT_TRUE(screen.collectionView.visibleCells().empty());
    mainScreen.resize({390, 600}, 1);
    EXPECT_NE(cell(0), nullptr);
}

TEST_F(UnsplashPickerTest, NamesPhotographersByBothNamesOrTheUsername) {
    auto& screen = open();
    std::string photo = photoJson();
    photo.replace(photo.find("\"last_name\": \"L\","), 17, "");
    answer(pageExchange(), 200, "[" + photo + "]");
    EXPECT_EQ(cell(0)->photoView.userNameLabel.text(), "ada");
    EXPECT_EQ(screen.collectionView.numberOfItems(), 1);
}

TEST(PickerTexts, SpeakEveryLanguage) {
    for (const auto* language : {"ar", "de", "en", "es", "fr", "ja", "ru"}) {
        const auto texts = pickerTexts(language);
        for (const auto* key : {"title", "search.placeholder", "search.clear", "cancel", "done",
                                "error.noResults.title", "error.noResults.description",
                                "error.noInternetConnection.title", "error.noInternetConnection.description",
                                "error.serverError.title", "error.serverError.description"})
            EXPECT_NE(texts.localizedString(key), key) << language;
        EXPECT_THAT(texts.localizedString("title"), HasSubstr("%d")) << language;
    }
}

TEST_F(UnsplashPickerTest, AProgramWithoutTheTextsStops) {
    PickerServices broken(PickerPlatform{console, timeline, work, http, json, images, caches, nullptr});
    EXPECT_THROW((void)UnsplashPicker::make(broken, window, configuration), fakes::ProgramStopped);
}

} // namespace
} // namespace tessivo::unsplash
