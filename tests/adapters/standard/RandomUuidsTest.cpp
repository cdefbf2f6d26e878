#include "standard/RandomUuids.h"

#include <gtest/gtest.h>

#include <set>

namespace tessivo {
namespace {

TEST(RandomUuidsTest, DifferAndSayThatTheyAreRandom) {
    RandomUuids source;
    std::set<Uuid> seen;
    for (int count = 0; count < 1000; ++count) {
        const Uuid uuid = source.random();
        const std::string text = uuid.uuidString();
        EXPECT_EQ(text[14], '4') << text;
        EXPECT_NE(std::string("89AB").find(text[19]), std::string::npos) << text;
        seen.insert(uuid);
    }
    EXPECT_EQ(seen.size(), 1000U);
}

} // namespace
} // namespace tessivo
