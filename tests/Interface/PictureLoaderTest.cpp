#include "Interface/PictureLoader.h"

#include "Ports/ResponseCache.h"
#include "fakes/MemoryResponseCaches.h"
#include "fakes/PostedWorkQueue.h"
#include "fakes/RecordingConsole.h"
#include "fakes/ScriptedHttpClient.h"
#include "fakes/Timeline.h"

#include <gtest/gtest.h>

namespace tessivo::ui {
namespace {

/// Counts decoded pictures; the data "none" cannot be decoded.
class CountedImages final : public ImageCoding {
public:
    std::shared_ptr<const Bitmap> decode(std::string_view data,
                                         std::optional<PixelSize> size) const override {
        ++decoded;
        covering = size.value_or(PixelSize{});
        return data == "none" ? nullptr : std::make_shared<const Bitmap>();
    }
    std::optional<std::string> jpeg(const Bitmap&, double) const override { return std::nullopt; }
    std::optional<std::string> png(const Bitmap&) const override { return std::nullopt; }

    mutable int decoded = 0;
    mutable PixelSize covering;
};

class PictureLoaderTest : public testing::Test {
protected:
    std::shared_ptr<PictureLoader::Load> load(const std::string& url, bool cached = false) {
        return loader->load({.http = {.url = url},
                             .covering = {30, 20},
                             .cache = cached ? cache : nullptr,
                             .failureLine = "Failed: "},
                            [this, url](const std::shared_ptr<const Bitmap>& picture, bool fromCache) {
                                heard.push_back(url + (picture ? fromCache ? " cached" : " fresh" : " none"));
                            });
    }
    void answer(std::size_t exchange, const Result<HttpResponse>& result) {
        http.answer(exchange, result);
        timeline.runPosted();
    }

    fakes::Timeline timeline;
    fakes::PostedWorkQueue work{timeline};
    fakes::ScriptedHttpClient http;
    fakes::RecordingConsole console;
    CountedImages images;
    fakes::MemoryResponseCaches caches;
    std::shared_ptr<ResponseCache> cache = caches.open("test", 1000, 1000);
    std::shared_ptr<PictureLoader> loader =
        std::make_shared<PictureLoader>(PictureLoader::Machine{http, work, images, timeline, console});
    std::vector<std::string> heard;
};

TEST_F(PictureLoaderTest, TellsPicturesFailuresAndOtherDataApart) {
    load("a");
    load("b");
    load("c");
    answer(0, HttpResponse{200, {}, "picture"});
    answer(1, HttpResponse{200, {}, "none"});
    answer(2, Error{"URLError", -1, "gone"});
    EXPECT_EQ(heard, (std::vector<std::string>{"a fresh", "b none", "c none"}));
    EXPECT_EQ(console.lines(), (std::vector<std::string>{"Failed: gone"}));
    EXPECT_EQ(images.covering, (PixelSize{30, 20}));
}

TEST_F(PictureLoaderTest, WhatCameOnceComesOutOfTheCache) {
    load("a", true);
    timeline.runPosted();
    answer(0, HttpResponse{200, {}, "picture"});
    load("a", true);
    timeline.runPosted();
    EXPECT_EQ(heard, (std::vector<std::string>{"a fresh", "a cached"}));
    EXPECT_EQ(http.exchanges().size(), 1u);
}

TEST_F(PictureLoaderTest, ACancelledPictureIsNotDecodedHoweverFarItHasCome) {
    caches.bodies["known"] = "picture";
    const auto known = load("known", true);
    const auto asked = load("asked");
    const auto come = load("come");
    http.answer(1, HttpResponse{200, {}, "picture"}); // waits for its turn to be decoded
    for (const auto& one : {known, asked, come})
        one->cancel();
    timeline.runPosted();
    EXPECT_EQ(images.decoded, 0);
    EXPECT_TRUE(heard.empty());
    EXPECT_TRUE(http.exchanges()[0]->isCancelled);
    EXPECT_TRUE(console.lines().empty()) << "no failure of anyone's";
}

TEST_F(PictureLoaderTest, SoManyAreUnderWayAndTheOthersWaitTheirTurn) {
    std::vector<std::shared_ptr<PictureLoader::Load>> loads;
    for (std::size_t index = 0; index < PictureLoader::maximumUnderWay + 3; ++index)
        loads.push_back(load(std::to_string(index)));
    EXPECT_EQ(http.running(), PictureLoader::maximumUnderWay);
    loads[PictureLoader::maximumUnderWay]->cancel(); // it has not begun
    answer(0, HttpResponse{200, {}, "picture"});
    EXPECT_EQ(http.exchanges().back()->request.url, std::to_string(PictureLoader::maximumUnderWay + 1));
    loads[1]->cancel();
    EXPECT_EQ(http.exchanges().back()->request.url, std::to_string(PictureLoader::maximumUnderWay + 2));
    EXPECT_EQ(http.running(), PictureLoader::maximumUnderWay);
}

TEST_F(PictureLoaderTest, ALoaderThatGoesLetsGoOfItsReceivers) {
    const auto receiver = std::make_shared<int>(0);
    loader->load({.http = {.url = "a"}, .covering = {1, 1}, .cache = nullptr, .failureLine = {}},
                 [receiver](const std::shared_ptr<const Bitmap>&, bool) { ++*receiver; });
    loader.reset();
    EXPECT_EQ(receiver.use_count(), 1);
    answer(0, HttpResponse{200, {}, "picture"});
    EXPECT_EQ(*receiver, 0);
}

} // namespace
} // namespace tessivo::ui
