#include "standard/RandomUuids.h"

#include <gtest/gtest.h>

#include <set>

namespace tessivo {
namespace {

TEST(UuidTest, ItsTextIsReadBackInEitherCaseAndNothingElseIs) {
    const std::string text = "0F1E2D3C-4B5A-4978-8796-A5B4C3D2E1F0";
    const auto uuid = Uuid::fromString(text);
    ASSERT_TRUE(uuid.has_value());
    EXPECT_EQ(uuid->uuidString(), text);
    EXPECT_EQ(Uuid::fromString("0f1e2d3c-4b5a-4978-8796-a5b4c3d2e1f0"), uuid);
    for (const char* broken :
         {"", "0F1E2D3C-4B5A-4978-8796-A5B4C3D2E1F", "0F1E2D3C-4B5A-4978-8796-A5B4C3D2E1F00",
          "0F1E2D3C+4B5A-4978-8796-A5B4C3D2E1F0", "0F1E2D3C-4B5A-4978-8796-A5B4C3D2E1FG",
          "{F1E2D3C-4B5A-4978-8796-A5B4C3D2E1F}"})
        EXPECT_EQ(Uuid::fromString(broken), std::nullopt) << broken;
}

TEST(UuidTest, RandomOnesDifferAndSayThatTheyAreRandom) {
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
