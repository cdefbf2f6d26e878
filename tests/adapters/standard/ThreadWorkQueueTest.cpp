#include "standard/ThreadWorkQueue.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <future>
#include <vector>

namespace tessivo {
namespace {

TEST(ThreadWorkQueue, RunsWorkInOrderOnAThreadOfItsOwn) {
    std::vector<int> order;
    std::promise<std::thread::id> done;
    ThreadWorkQueue queue;
    for (int index = 0; index < 100; ++index)
        queue.post([&order, index] { order.push_back(index); });
    queue.post([&] { done.set_value(std::this_thread::get_id()); });
    EXPECT_NE(done.get_future().get(), std::this_thread::get_id());
    ASSERT_EQ(order.size(), 100u);
    EXPECT_TRUE(std::is_sorted(order.begin(), order.end()));
}

TEST(ThreadWorkQueue, FinishRunsAlsoWhatTheWorkPostsAndThenNothingMore) {
    int ran = 0;
    ThreadWorkQueue queue;
    queue.post([&] {
        ++ran;
        queue.post([&] { ++ran; });
    });
    queue.finish();
    EXPECT_EQ(ran, 2);
    queue.post([&] { ++ran; });
    queue.finish();
    EXPECT_EQ(ran, 2);
}

} // namespace
} // namespace tessivo
