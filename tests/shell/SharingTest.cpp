#include "Support/Sharing/ActivityViewController.h"
#include "fakes/KeysAsTexts.h"
#include "fakes/RecordingPictureSharing.h"
#include "shell/ControlWindow.h"

#include <gmock/gmock.h>

namespace tessivo {
namespace {

class ShareSheetWindow : public ControlWindow {
protected:
    ~ShareSheetWindow() override { undraw(); }

    /// Waits for the picture of `view`, which must not come inline.
    std::shared_ptr<const Bitmap> pictureOf(const ui::View& view) {
        std::optional<std::shared_ptr<const Bitmap>> taken;
        snapshots.snapshot(view, [&](auto picture) { taken = picture; });
        EXPECT_FALSE(taken);
        EXPECT_TRUE(runUntil([&] { return taken.has_value(); }));
        return taken.value_or(nullptr);
    }
    [[nodiscard]] static std::vector<int> pixel(const Bitmap& picture, int x, int y) {
        const auto first = picture.pixels.begin() + 4 * (static_cast<std::ptrdiff_t>(y) * picture.width + x);
        return {first, first + 4};
    }
};

TEST_F(ShareSheetWindow, APictureOfAViewHasItsBoundsInPixelsAndIsTransparentBeside) {
    screen->label.setFrame({10, 10, 120, 80});
    draw(*screen, R"(
        Rectangle { anchors.fill: parent; color: "green" }
        Item {
            id: drawing
            x: 10; y: 10; width: 120; height: 80
            Rectangle { anchors.fill: parent; radius: 20; color: "#ff0000" }
            Component.onCompleted: root.screen.control("label").drawnBy(drawing)
        })");
    const auto picture = pictureOf(screen->label);
    ASSERT_TRUE(picture);
    const double scale = window.effectiveDevicePixelRatio();
    EXPECT_EQ(picture->width, 120 * scale);
    EXPECT_EQ(picture->height, 80 * scale);
    EXPECT_THAT(pixel(*picture, picture->width / 2, picture->height / 2),
                testing::ElementsAre(255, 0, 0, 255));
    for (const auto& [x, y] : {std::pair(0, 0), std::pair(picture->width - 1, picture->height - 1)})
        EXPECT_EQ(pixel(*picture, x, y).back(), 0) << x << ", " << y;
}

TEST_F(ShareSheetWindow, AViewThatIsNotDrawnOrNoLongerDrawnHasNoPicture) {
    EXPECT_FALSE(pictureOf(screen->label));
    draw(*screen, R"(Component.onCompleted: root.screen.control("label").drawnBy(root))");
    undraw();
    EXPECT_FALSE(pictureOf(screen->label));
}

TEST_F(ShareSheetWindow, TheSheetShowsThePictureAndEachButtonSharesIt) {
    const fakes::KeysAsTexts texts;
    fakes::RecordingPictureSharing sharing;
    const auto picture = std::make_shared<Bitmap>(Bitmap{1, 1, {255, 0, 255, 255}});
    const auto sheet = std::make_shared<ActivityViewController>(windowContext, texts, sharing, picture);
    for (const char* act : {"Save", "Copy", "Open", "Mail"}) {
        screen->present(sheet);
        draw(*sheet, "ActivityViewController { anchors.fill: parent; screen: root.screen }");
        ASSERT_TRUE(runUntil([&] { return window.grabWindow().pixelColor(195, 380) == QColor("magenta"); }));
        hand.tap(QString::fromLatin1(act));
        EXPECT_EQ(stack.top(), screen.get()) << act;
    }
    std::vector<std::string> acts;
    for (const auto& shared : sharing.shared) {
        acts.push_back(shared.act);
        EXPECT_EQ(shared.picture, picture);
    }
    EXPECT_THAT(acts, testing::ElementsAre("save", "copy", "open", "mail"));
    undraw();
}

TEST_F(ShareSheetWindow, TheKeyboardLeavesAndCancelsWithoutSharing) {
    const fakes::KeysAsTexts texts;
    fakes::RecordingPictureSharing sharing;
    const auto sheet = std::make_shared<ActivityViewController>(
        windowContext, texts, sharing, std::make_shared<Bitmap>(Bitmap{1, 1, {1, 2, 3, 255}}));
    screen->present(sheet);
    draw(*sheet, "ActivityViewController { anchors.fill: parent; focus: true; screen: root.screen }");
    hand.press(Qt::Key_Escape);
    EXPECT_EQ(stack.top(), screen.get());
    screen->present(sheet);
    hand.press(Qt::Key_Return);
    ASSERT_EQ(sharing.shared.size(), 1U);
    EXPECT_EQ(sharing.shared.front().act, "save");
    undraw();
}

} // namespace
} // namespace tessivo
