// One step of a pan on a cell with three actions: its time, and the memory that it takes from the heap.

#include "Interface/Animation.h"
#include "Interface/CollectionView.h"
#include "SwipeCells/SwipeCollectionViewCell.h"
#include "fakes/FixedWidthTexts.h"
#include "fakes/Timeline.h"
#include "tests/SwipeCells/SwipeList.h"

#include <benchmark/benchmark.h>

#include <cstdlib>
#include <new>

namespace {

long allocations = 0;

} // namespace

[[gnu::noinline]] void* operator new(std::size_t size) {
    ++allocations;
    if (void* memory = std::malloc(size))
        return memory;
    throw std::bad_alloc();
}

[[gnu::noinline]] void operator delete(void* memory) noexcept {
    std::free(memory);
}

[[gnu::noinline]] void operator delete(void* memory, std::size_t) noexcept {
    std::free(memory);
}

namespace tessivo::swipe {
namespace {

void panStep(benchmark::State& state) {
    const auto list = SwipeList::make();
    list->right = SwipeActions{list->action("Delete"), list->action("Edit"), list->action("Share")};
    list->options.transitionStyle = static_cast<SwipeTransitionStyle>(state.range(0));
    list->begin(1, -100);
    double translation = 0;
    const auto step = [&] {
        translation = translation < -200 ? -10 : translation - 1;
        list->change(1, translation, -100);
    };
    step();
    const long before = allocations;
    for (auto _ : state)
        step();
    state.counters["allocations"] =
        benchmark::Counter(static_cast<double>(allocations - before), benchmark::Counter::kAvgIterations);
}

BENCHMARK(panStep)->ArgName("layout")->DenseRange(0, 2);

} // namespace
} // namespace tessivo::swipe
