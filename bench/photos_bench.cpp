// What the photo browser costs, each beside its floor: a page of photos beside the bare parse of its text, a
// waterfall beside the same arithmetic in a plain loop, its visible items beside one binary search.
#include "UnsplashPicker/PhotoCoding.h"
#include "UnsplashPicker/WaterfallLayout.h"
#include "fakes/RecordingConsole.h"
#include "json/NlohmannJson.h"

#include <benchmark/benchmark.h>
#include <nlohmann/json.hpp>

#include <algorithm>
#include <array>
#include <cmath>

namespace tessivo::unsplash {
namespace {

std::string page() {
    UnsplashPhoto photo;
    photo.identifier = "AbCdEfGhIjK";
    photo.width = 4000;
    photo.height = 3000;
    photo.color = Color{0.2, 0.4, 0.6, 1};
    photo.user.identifier = "user";
    photo.user.username = "ada";
    photo.user.name = "Ada Lind";
    const auto address = [](const char* what) {
        return *Url::parse(
            std::string("https://images.test/photo-1550000000000-abcdef?ixid=abc&fm=jpg&q=80&w=") + what);
    };
    for (int kind = 0; kind < 5; ++kind)
        photo.urls.emplace(static_cast<URLKind>(kind), address("1080"));
    for (int kind = 0; kind < 4; ++kind)
        photo.links.emplace(static_cast<PhotoLinkKind>(kind), address("links"));
    JsonValue::Array list;
    for (int index = 0; index < 30; ++index)
        list.push_back(encodePhoto(photo));
    return NlohmannJson().write(JsonValue(std::move(list)));
}

void parsePageBare(benchmark::State& state) {
    const std::string text = page();
    for (auto _ : state)
        benchmark::DoNotOptimize(nlohmann::json::parse(text));
}
BENCHMARK(parsePageBare);

void decodePage(benchmark::State& state) {
    const std::string text = page();
    const NlohmannJson json;
    for (auto _ : state)
        benchmark::DoNotOptimize(decodePhotos(json.parse(text).value()));
}
BENCHMARK(decodePage);

constexpr int itemCount = 10'000;

class Sizes final : public WaterfallLayoutDelegate {
public:
    ui::Size waterfallSizeForItem(int item) override { return {400, 300.0 + item % 7 * 40}; }
};

/// Three columns of 514 points, each item in the shortest, and the two figures that the layout keeps of each:
/// its frame and the lowest edge so far.
void placeInPlainLoop(benchmark::State& state) {
    const std::shared_ptr<WaterfallLayoutDelegate> sizes = std::make_shared<Sizes>();
    std::vector<ui::Rect> frames(itemCount);
    std::vector<double> lowestEdges(itemCount);
    constexpr double columnWidth = (514 - 2 * 16) / 3.0;
    for (auto _ : state) {
        std::array<double, 3> heights{16, 16, 16};
        double lowestEdge = 0;
        for (int item = 0; item < itemCount; ++item) {
            const ui::Size size = sizes->waterfallSizeForItem(item);
            const auto shortest = std::ranges::min_element(heights);
            const double x = (columnWidth + 16) * static_cast<double>(shortest - heights.begin());
            const ui::Rect frame{x, *shortest, std::floor(columnWidth),
                                 std::floor(columnWidth * size.height / size.width)};
            *shortest += frame.height + 16;
            lowestEdge = std::max(lowestEdge, frame.maxY());
            frames[static_cast<std::size_t>(item)] = frame;
            lowestEdges[static_cast<std::size_t>(item)] = lowestEdge;
        }
        benchmark::DoNotOptimize(frames.data());
        benchmark::DoNotOptimize(lowestEdges.data());
    }
}
BENCHMARK(placeInPlainLoop);

void prepareWaterfall(benchmark::State& state) {
    fakes::RecordingConsole console;
    const auto sizes = std::make_shared<Sizes>();
    WaterfallLayout layout(console);
    layout.delegate = sizes;
    for (auto _ : state)
        layout.prepare(itemCount, {}, {514, 844});
}
BENCHMARK(prepareWaterfall);

void searchOnce(benchmark::State& state) {
    std::vector<double> edges(itemCount);
    for (int item = 0; item < itemCount; ++item)
        edges[static_cast<std::size_t>(item)] = item * 60.0;
    double at = 0;
    for (auto _ : state) {
        at = at > 500'000 ? 0 : at + 997;
        benchmark::DoNotOptimize(std::ranges::lower_bound(edges, at));
    }
}
BENCHMARK(searchOnce);

void queryWaterfall(benchmark::State& state) {
    fakes::RecordingConsole console;
    const auto sizes = std::make_shared<Sizes>();
    WaterfallLayout layout(console);
    layout.delegate = sizes;
    layout.prepare(itemCount, {}, {514, 844});
    double at = 0;
    for (auto _ : state) {
        at = at > 500'000 ? 0 : at + 997;
        benchmark::DoNotOptimize(layout.itemsIn({0, at, 514, 844}));
    }
}
BENCHMARK(queryWaterfall);

} // namespace
} // namespace tessivo::unsplash
