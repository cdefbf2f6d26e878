#include "Support/EventImages.h"

#include "Ports/ImageCoding.h"
#include "support/Pictures.h"
#include "support/Program.h"

#include <gmock/gmock.h>

namespace tessivo {
namespace {

using testing::ElementsAre;
using testing::EndsWith;
using testing::HasSubstr;
using testing::StartsWith;

class EventImagesTest : public testing::Test {
protected:
    Program program;
    EventImages& images = program.services().eventImages();
};

TEST_F(EventImagesTest, TwoEventsShareOneFileAndNoNameLeavesTheFolder) {
    const auto keep = [&](int width, const std::string& url) {
        images.keepUnsplashImage({{}, std::make_shared<const Bitmap>(stripes(width, 4))}, url);
        return program.console.take().back();
    };
    (void)program.console.take();
    EXPECT_THAT(keep(4, "https://i.test/a/shared?w=1"), StartsWith("Изображение сохранено по пути: "));
    EXPECT_THAT(keep(6, "https://i.test/b/shared?w=2"), EndsWith("/documents/shared"));
    EXPECT_EQ(images.loadUnsplashImage("https://elsewhere.test/shared", {}).bitmap->width, 6);
    for (const auto* url : {"https://i.test", "https://i.test/", "https://i.test/..", "https://i.test/.",
                            "https://i.test/%2e%2e", "https://i.test/..%2fevents.sqlite"}) {
        EXPECT_EQ(keep(4, url), "Не удалось сохранить изображение.") << url;
        EXPECT_FALSE(images.showUnsplashImage(url, {}).isSet());
        EXPECT_THAT(program.console.take(), ElementsAre("Не удалось загрузить изображение."));
    }
    EXPECT_EQ(keep(4, "no address"), "Некорректный URL-адрес изображения.");
    images.keepUnsplashImage({}, "https://i.test/empty");
    EXPECT_THAT(program.console.take(), ElementsAre("Не удалось сохранить изображение."));
}

TEST_F(EventImagesTest, APhotoOfTheUsersIsReadFromWhereItLies) {
    std::vector<ui::Image> shown;
    const auto load = [&](Result<HttpResponse> answer) {
        images.loadPhoto("file:///home/a.jpg", {},
                         [&](ui::Image image) { shown.push_back(std::move(image)); });
        program.http.answer(std::move(answer));
        program.timeline.runPosted();
    };
    program.timeline.runPosted();
    (void)program.console.take();
    load(Error{std::string(urlErrorDomain), UrlErrorFileDoesNotExist, "gone"});
    EXPECT_THAT(program.console.take(), ElementsAre("Ошибка загрузки изображения: gone"));
    load(HttpResponse{std::nullopt, {}, "no picture"});
    EXPECT_TRUE(program.console.take().empty());
    EXPECT_FALSE(shown[0].isSet() || shown[1].isSet());
    load(HttpResponse{std::nullopt, {}, *program.images.png(stripes(6, 4))});
    EXPECT_EQ(shown.at(2).bitmap->width, 6);
    EXPECT_EQ(program.http.exchanges().back()->request.kind, AddressKind::File);
    EXPECT_THAT(program.http.exchanges().back()->request.url, HasSubstr("/home/a.jpg"));
}

} // namespace
} // namespace tessivo
