#include "Ports/Uuid.h"

#include <gtest/gtest.h>

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

} // namespace
} // namespace tessivo
