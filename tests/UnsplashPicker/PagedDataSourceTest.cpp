#include "UnsplashPicker/PagedDataSource.h"

#include "PhotoJson.h"
#include "PickerFixture.h"

namespace tessivo::unsplash {
namespace {

/// Records its calls.
class Recorder final : public PagedDataSourceDelegate {
public:
    void dataSourceWillStartFetching(PagedDataSource&) override { heard.push_back("start"); }
    void dataSourceDidFetch(PagedDataSource&, const Photos& items) override {
        heard.push_back("fetched " + std::to_string(items.size()));
    }
    void dataSourceFetchDidFail(PagedDataSource&, const Error& error) override {
        heard.push_back("failed " + error.domain);
    }

    std::vector<std::string> heard;
};

class PagedDataSourceTest : public PickerTest {
protected:
    PagedDataSourceTest() { source->delegate = recorder; }

    void fetch() {
        source->fetchItems();
        timeline.runPosted();
    }
    void fetch(int count) {
        fetch();
        http.answer(200, photosJson(count, static_cast<int>(source->items()->size()) + 1));
    }
    [[nodiscard]] const std::string& lastUrl() const { return http.exchanges().back()->request.url; }

    std::shared_ptr<PagedDataSource> source = std::make_shared<PagedDataSource>(
        work, PhotosDataSourceFactory{services, PhotosDataSourceFactory::Kind::collection, "317099"});
    std::shared_ptr<Recorder> recorder = std::make_shared<Recorder>();
};

using Heard = std::vector<std::string>;

TEST_F(PagedDataSourceTest, AFullPageLeadsToAnotherAndAShortOneEndsPaging) {
    struct Case {
        std::vector<int> pages;
        bool canFetchMore;
        int nextPage;
    };
    for (const auto& [pages, canFetchMore, nextPage] :
         {Case{{0}, false, 1}, Case{{1}, false, 1}, Case{{29}, false, 1}, Case{{30}, true, 2},
          Case{{31}, true, 2}, Case{{30, 30}, true, 3}, Case{{30, 30, 0}, false, 3}}) {
        source->reset();
        int total = 0;
        for (const int count : pages) {
            fetch(count);
            total += count;
        }
        EXPECT_EQ(source->canFetchMore(), canFetchMore) << total;
        EXPECT_EQ(source->cursor().page, nextPage) << total;
        EXPECT_EQ(source->items()->size(), static_cast<std::size_t>(total));
        EXPECT_FALSE(source->isFetching());
    }
    EXPECT_EQ(source->items()->back()->identifier, "p60");
}

TEST_F(PagedDataSourceTest, AnExhaustedSourceGivesAnEmptyPageAtOnce) {
    fetch(3);
    source->fetchItems();
    EXPECT_EQ(recorder->heard, (Heard{"start", "fetched 3", "fetched 0"}));
    EXPECT_EQ(http.exchanges().size(), 1u);
}

TEST_F(PagedDataSourceTest, OnlyTheFirstPageIsAnnounced) {
    fetch(30);
    fetch(30);
    EXPECT_EQ(recorder->heard, (Heard{"start", "fetched 30", "fetched 30"}));
}

TEST_F(PagedDataSourceTest, RefusesToFetchTwiceAtOnce) {
    fetch();
    source->fetchItems();
    EXPECT_EQ(source->error(), DataSourceError::dataSourceIsFetching());
    EXPECT_TRUE(source->isFetching()) << "the first goes on";
    http.answer(200, photosJson(30));
    EXPECT_EQ(source->error(), std::nullopt);
    EXPECT_EQ(recorder->heard, (Heard{"start", "failed DataSourceError", "fetched 30"}));
}

TEST_F(PagedDataSourceTest, AFailureKeepsThePage) {
    fetch(30);
    fetch();
    http.answer(500, "");
    EXPECT_EQ(source->error()->domain, "NetworkService");
    EXPECT_EQ(source->items()->size(), 30u);
    fetch(30);
    EXPECT_NE(lastUrl().find("page=2&"), std::string::npos);
    EXPECT_EQ(source->items()->size(), 60u);
    EXPECT_EQ(source->error(), std::nullopt);
}

TEST_F(PagedDataSourceTest, CancellingReportsTheRunningFetchAndAllowsTheNext) {
    fetch();
    source->cancelFetch();
    EXPECT_FALSE(source->isFetching());
    EXPECT_EQ(recorder->heard, (Heard{"start", "failed URLError"}));
    fetch(2);
    EXPECT_EQ(source->items()->size(), 2u);
}

TEST_F(PagedDataSourceTest, AFetchCancelledBeforeItsStartCountsAsAnEmptyPage) {
    source->fetchItems();
    source->cancelFetch();
    timeline.runPosted();
    EXPECT_TRUE(http.exchanges().empty());
    EXPECT_EQ(recorder->heard, (Heard{"start", "fetched 0"}));
}

TEST_F(PagedDataSourceTest, ResetStartsOver) {
    fetch(30);
    fetch();
    source->reset();
    EXPECT_TRUE(source->items()->empty());
    EXPECT_EQ(source->cursor().page, 1);
    EXPECT_TRUE(source->canFetchMore());
    EXPECT_EQ(source->error(), std::nullopt);
    fetch(30);
    EXPECT_NE(lastUrl().find("?page=1&"), std::string::npos);
}

TEST_F(PagedDataSourceTest, ListsAlreadyHandedOutDoNotGrow) {
    fetch(30);
    const auto before = source->items();
    fetch(30);
    EXPECT_EQ(before->size(), 30u);
}

TEST_F(PagedDataSourceTest, ASearchCarriesItsFilter) {
    UnsplashPickerConfiguration configuration;
    configuration.contentFilterLevel = ContentFilterLevel::high;
    services.setConfiguration(configuration);
    const auto search = std::make_shared<PagedDataSource>(
        work, PhotosDataSourceFactory{services, PhotosDataSourceFactory::Kind::search, "sea"});
    search->fetchItems();
    timeline.runPosted();
    EXPECT_EQ(lastUrl(), services.configuration().apiURL() +
                             "/search/photos?content_filter=high&page=1&per_page=30&query=sea&");
}

} // namespace
} // namespace tessivo::unsplash
