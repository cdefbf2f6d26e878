#include "UnsplashPicker/PhotoCoding.h"

#include "PhotoJson.h"
#include "UnsplashPicker/HexColor.h"
#include "json/NlohmannJson.h"

#include <gtest/gtest.h>

namespace tessivo::unsplash {
namespace {

Result<UnsplashPhoto> decoded(const std::string& text) {
    const auto json = NlohmannJson().parse(text);
    if (!json)
        return json.error();
    return decodePhoto(json.value());
}

/// The sample photo with one stretch of its text replaced.
std::string changed(const std::string& from, const std::string& to) {
    std::string text = photoJson();
    const auto at = text.find(from);
    EXPECT_NE(at, std::string::npos) << from;
    return text.replace(at, from.size(), to);
}

TEST(PhotoCoding, ReadsAWholePhoto) {
    const auto result = decoded(photoJson());
    ASSERT_TRUE(result) << result.error().description;
    const UnsplashPhoto& photo = result.value();
    EXPECT_EQ(photo.identifier, "p1");
    EXPECT_EQ(photo.width, 400);
    EXPECT_EQ(photo.height, 300);
    EXPECT_EQ(photo.color, (Color{0.2, 0.4, 0.6, 1}));
    EXPECT_EQ(photo.exif->exposureTime, "1/60");
    EXPECT_EQ(photo.likesCount, 7);
    EXPECT_EQ(photo.downloadsCount, 11);
    EXPECT_EQ(photo.viewsCount, 12);
    EXPECT_EQ(photo.user.firstName, "Ada");
    EXPECT_EQ(photo.user.bio, std::nullopt);
    EXPECT_EQ(photo.user.portfolioURL->absoluteString(), "https://ada.test");
    EXPECT_EQ(photo.user.totalPhotos, 3);
    EXPECT_EQ(photo.user.profileImage.size(), 1u) << "an unknown size is passed over";
    EXPECT_EQ(photo.user.links.at(UserLinkKind::html).absoluteString(), "https://x.test/@ada");
    EXPECT_EQ(photo.urls.size(), 2u) << "an unknown kind and an address that is none are passed over";
    EXPECT_EQ(photo.urls.at(URLKind::regular).absoluteString(), "https://i.test/p1?w=1080");
    EXPECT_EQ(photo.links.at(PhotoLinkKind::downloadLocation).absoluteString(),
              "https://api.test/photos/p1/download");
}

TEST(PhotoCoding, WritesWhatItReads) {
    const NlohmannJson json;
    for (const auto& text : {photoJson(), changed("\"exif\"", "\"exit\""), changed("\"Ada\"", "null")}) {
        const auto photo = decoded(text);
        ASSERT_TRUE(photo);
        const auto again = decoded(json.write(encodePhoto(photo.value())));
        ASSERT_TRUE(again);
        EXPECT_EQ(again.value(), photo.value());
    }
}

TEST(PhotoCoding, FailsOnARequiredFieldThatDoesNotRead) {
    const std::pair<const char*, const char*> changes[] = {
        {"\"id\": \"p1\"", "\"id\": 1"},
        {"\"id\": \"p1\", ", ""},
        {"\"width\": 400", "\"width\": \"400\""},
        {"\"width\": 400", "\"width\": 400.5"},
        {"\"width\": 400", "\"width\": 1e30"},
        {"\"height\": 300", "\"height\": null"},
        {"\"likes\": 7", "\"likes\": true"},
        {"\"user\"", "\"owner\""},
        {"\"username\": \"ada\", ", ""},
        {"\"first_name\": \"Ada\"", "\"first_name\": 3"},
        {"\"portfolio_url\": \"https://ada.test\"", "\"portfolio_url\": {}"},
        {"\"total_likes\": 2,", ""},
        {"\"profile_image\": {", "\"profile_images\": {"},
        {"\"urls\": {", "\"sizes\": {"},
        {"\"links\": {\"self\"", "\"links\": [], \"other\": {\"self\""},
    };
    for (const auto& [from, to] : changes) {
        const auto result = decoded(changed(from, to));
        ASSERT_FALSE(result) << to;
        EXPECT_EQ(result.error().domain, decodingErrorDomain);
    }
    EXPECT_FALSE(decoded("[]"));
    EXPECT_FALSE(decoded("{}"));
}

TEST(PhotoCoding, LeavesAnOptionalFieldThatDoesNotReadEmpty) {
    EXPECT_EQ(decoded(changed("\"#336699\"", "12")).value().color, std::nullopt);
    EXPECT_EQ(decoded(changed("\"#336699\"", "\"33669z\"")).value().color, std::nullopt);
    EXPECT_EQ(decoded(changed("\"iso\": \"100\"", "\"iso\": 100")).value().exif, std::nullopt);
    EXPECT_EQ(decoded(changed("\"downloads\": 11", "\"downloads\": \"11\"")).value().downloadsCount,
              std::nullopt);
    EXPECT_EQ(decoded(changed("\"views\": 12, ", "")).value().viewsCount, std::nullopt);
    EXPECT_EQ(decoded(changed("\"https://ada.test\"", "\"no address\"")).value().user.portfolioURL,
              std::nullopt);
    EXPECT_EQ(decoded(changed("\"width\": 400", "\"width\": 4e2")).value().width, 400)
        << "a whole number, however it is written";
}

TEST(PhotoCoding, OneBrokenPhotoFailsTheList) {
    const NlohmannJson json;
    EXPECT_EQ(decodePhotos(json.parse(photosJson(3)).value()).value().size(), 3u);
    EXPECT_FALSE(decodePhotos(json.parse("[" + photoJson() + ", {}]").value()));
    EXPECT_FALSE(decodePhotos(json.parse("{}").value()));
}

TEST(HexColor, ReadsColoursByTheirLength) {
    const Color opaque{0.2, 0.4, 0.6, 1};
    const Color clear{0, 0, 0, 0};
    const std::pair<const char*, std::optional<Color>> cases[] = {{"#336699", opaque},
                                                                  {"336699", opaque},
                                                                  {"FF336699", opaque},
                                                                  {"369", opaque},
                                                                  {"#369", opaque},
                                                                  {"00336699", Color{0.2, 0.4, 0.6, 0}},
                                                                  {"12345", clear},
                                                                  {"", clear},
                                                                  {"##336699", clear},
                                                                  {"1234567890", clear},
                                                                  {"33669g", {}},
                                                                  {"-33669", {}},
                                                                  {"\u00e9\u00e9\u00e9", {}},
                                                                  {" 336699", clear}};
    for (const auto& [text, color] : cases)
        EXPECT_EQ(colorFromHex(text), color) << text;
}

TEST(HexColor, WritesEightDigits) {
    EXPECT_EQ(hexFromColor({0.2, 0.4, 0.6, 1}), "FF336699");
    EXPECT_EQ(hexFromColor({1, 0, 0.5, 0}), "00FF0080");
}

} // namespace
} // namespace tessivo::unsplash
