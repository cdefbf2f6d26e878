#include "AddEventVC/PictureCrop.h"

#include "support/Pictures.h"

#include <gtest/gtest.h>

namespace tessivo {
namespace {

TEST(PictureCrop, GrowsToWholePixelsAndIsCutToThePicture) {
    struct Case {
        ui::Rect area;
        int first; ///< column; of no picture -1
        int width;
        int height;
    };
    for (const auto& [area, first, width, height] :
         {Case{{2, 1, 3, 2}, 2, 3, 2}, Case{{2.9, 0, 1.2, 4}, 2, 3, 4}, Case{{-5, -5, 100, 100}, 0, 10, 4},
          Case{{9.5, 3.5, 9, 9}, 9, 1, 1}, Case{{10, 0, 5, 4}, -1, 0, 0}, Case{{3, 1, 0, 2}, -1, 0, 0}}) {
        const auto part = cropped(stripes(10, 4), area);
        ASSERT_EQ(part == nullptr, first < 0) << area.x;
        if (!part)
            continue;
        EXPECT_EQ(part->width, width) << area.x;
        EXPECT_EQ(part->height, height) << area.x;
        EXPECT_EQ(redAt(*part, 0), first * 10);
        EXPECT_EQ(redAt(*part, width - 1), (first + width - 1) * 10);
    }
}

} // namespace
} // namespace tessivo
