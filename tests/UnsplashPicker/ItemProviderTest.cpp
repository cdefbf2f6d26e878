#include "PhotoJson.h"
#include "PickerFixture.h"
#include "UnsplashPicker/UnsplashPhotoItemProvider.h"

namespace tessivo::unsplash {
namespace {

class ItemProviderTest : public PickerTest {
protected:
    [[nodiscard]] UnsplashPhoto photo() const {
        return UnsplashPhotoItemProvider::object(json, photoJson()).value();
    }
    UnsplashPhotoItemProvider::Completion keep() {
        return [this](const Result<std::string>& result) { loaded.push_back(result); };
    }

    std::vector<Result<std::string>> loaded;
};

TEST_F(ItemProviderTest, HandsOutTheRecord) {
    const UnsplashPhotoItemProvider provider(services, photo());
    EXPECT_EQ(provider.writableTypeIdentifiers(),
              (std::vector<std::string>{"com.unsplash.photo", "public.jpeg"}));
    EXPECT_EQ(provider.loadData("com.unsplash.photo", keep()), nullptr);
    EXPECT_EQ(UnsplashPhotoItemProvider::object(json, loaded.at(0).value()).value(), photo());
    ASSERT_EQ(http.exchanges().size(), 1u);
    EXPECT_EQ(http.exchanges()[0]->request.url, "https://api.test/photos/p1/download?client_id=");
    EXPECT_FALSE(UnsplashPhotoItemProvider::object(json, "{}"));
    EXPECT_FALSE(UnsplashPhotoItemProvider::object(json, "{"));
}

TEST_F(ItemProviderTest, FetchesThePicture) {
    const UnsplashPhotoItemProvider provider(services, photo());
    const auto task = provider.loadData("public.jpeg", keep());
    ASSERT_NE(task, nullptr);
    EXPECT_EQ(http.exchanges().back()->request.url, "https://i.test/p1?w=1080");
    http.answer(200, "picture");
    EXPECT_EQ(loaded.at(0).value(), "picture");
    provider.loadData("public.jpeg", keep())->cancel();
    EXPECT_EQ(loaded.at(1).error().code, UrlErrorCancelled);
}

TEST_F(ItemProviderTest, RefusesWhatItDoesNotHave) {
    UnsplashPhoto bare = photo();
    bare.urls.clear();
    bare.links.clear();
    const UnsplashPhotoItemProvider provider(services, bare);
    provider.loadData("public.jpeg", keep());
    provider.loadData("public.png", keep());
    EXPECT_EQ(loaded.at(0).error(), ItemProviderError::cannotDecodeLink("regular", "p1"));
    EXPECT_EQ(loaded.at(1).error(), ItemProviderError::invalidTypeIdentifier("public.png"));
    EXPECT_TRUE(http.exchanges().empty()) << "a photo without that link is not told of";
}

} // namespace
} // namespace tessivo::unsplash
