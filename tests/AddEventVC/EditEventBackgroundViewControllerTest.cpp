#include "AddEventVC/EditEventBackgroundViewController.h"

#include "Ports/DocumentFiles.h"
#include "support/EditTest.h"

namespace tessivo {
namespace {

using testing::ElementsAre;

class EditBackgroundTest : public EditTest {
protected:
    EditEventBackgroundViewController& openOn(const EventItem& item) {
        store(item);
        return open<EditEventBackgroundViewController>(EditScreen::Background, row());
    }

    static bool gradientShows(const EditEventBackgroundViewController& screen) {
        EXPECT_EQ(screen.eventView.sublayers().size(), 1U) << "one layer, whatever is shown";
        return !screen.eventView.sublayers().front()->isHidden();
    }
};

TEST_F(EditBackgroundTest, OpensOnTheStoredBackgroundWithItsMark) {
    struct Case {
        const char* what;
        std::int16_t color;
        std::int16_t gradient;
        std::optional<std::string> photo;
        std::optional<int> colorMark;
        std::optional<int> gradientMark;
    };
    const Case cases[] = {{"colour", 4, NO_VALUE, {}, 4, {}},
                          {"gradient", NO_VALUE, 7, {}, {}, 7},
                          {"photo", NO_VALUE, NO_VALUE, "file:///gone.jpg", {}, {}}};
    store(summer());
    for (const auto& [what, color, gradient, photo, colorMark, gradientMark] : cases) {
        SCOPED_TRACE(what);
        const auto event = row();
        event->setColor(color);
        event->setGradient(gradient);
        event->setPhotoPath(photo);
        auto& screen = open<EditEventBackgroundViewController>(EditScreen::Background, event);
        EXPECT_EQ(screen.selectedColorIndexPath, colorMark);
        EXPECT_EQ(screen.selectedGradientIndexPath, gradientMark);
        EXPECT_EQ(gradientShows(screen), gradientMark.has_value());
        EXPECT_EQ(screen.eventView.sublayers().front()->frame(), (ui::Rect{0, 0, 390 - 32, 200}));
        EXPECT_EQ(screen.eventView.timeLabel.text(), "In 4\nDays");
        EXPECT_EQ(screen.eventView.eventInformationLabel.text(), "Summer\n25 June 2030");
        screen.dismiss(false);
    }
}

TEST_F(EditBackgroundTest, SaveStoresAChoiceAndTouchesNoNotification) {
    remind(summer());
    auto& screen = openOn(summer());
    screen.gradientCollection.tapItem(2);
    EXPECT_TRUE(gradientShows(screen));
    screen.colorCollection.tapItem(6);
    EXPECT_FALSE(gradientShows(screen));
    EXPECT_EQ(screen.eventView.backgroundColor(), ui::ColorRef::named("color 7"));
    screen.gradientCollection.tapItem(9);
    EXPECT_TRUE(gradientShows(screen));
    EXPECT_EQ(screen.selectedGradientIndexPath, 9);
    EXPECT_EQ(screen.selectedColorIndexPath, std::nullopt);
    EXPECT_THAT(save(screen),
                ElementsAre("save Summer, 25 June 2030 6:30 PM, unit 1, repeat 0, future, 2 0 Pack, 9999 9",
                            "pass", "-- CustomTabBarController"));
}

TEST_F(EditBackgroundTest, WithoutAChoiceSavePassesAndShowsTheListsAlone) {
    EXPECT_THAT(save(openOn(summer())), ElementsAre("pass", "-- CustomTabBarController"));
}

TEST_F(EditBackgroundTest, APhotoIsShownWholeAndStoredByItsAddress) {
    auto& screen = openOn(summer());
    ImagePickerController picker(program.services());
    const ui::Image whole{{}, std::make_shared<Bitmap>(Bitmap{1, 1, {1, 2, 3, 255}})};
    EXPECT_THROW(screen.imagePickerControllerDidFinishPickingMedia(picker, {{}, whole, "file:///a.jpg"}),
                 fakes::ProgramStopped)
        << "the framed part alone is not enough";
    screen.imagePickerControllerDidFinishPickingMedia(picker, {whole, ui::Image(), "file:///a.jpg"});
    EXPECT_EQ(screen.eventView.photoView.image().bitmap, whole.bitmap);
    EXPECT_EQ(screen.selectedColorIndexPath, std::nullopt);
    save(screen);
    EXPECT_EQ(row()->photoPath(), "file:///a.jpg");
    EXPECT_EQ(row()->color(), NO_VALUE);
}

TEST_F(EditBackgroundTest, AKeptPictureIsWrittenAtSaveAndNotBefore) {
    auto& screen = openOn(summer());
    const ui::Image part{{}, std::make_shared<Bitmap>(Bitmap{1, 1, {1, 2, 3, 255}})};
    screen.didCrop(part, "https://images.example/hill?w=1080");
    EXPECT_FALSE(program.documents.read("hill"));
    EXPECT_EQ(row()->unsplashPath(), std::nullopt);
    screen.nextButton.tap();
    EXPECT_TRUE(program.documents.read("hill"));
    EXPECT_EQ(row()->unsplashPath(), "https://images.example/hill?w=1080");
}

TEST_F(EditBackgroundTest, BackKeepsAChoiceInMemoryOnly) {
    store(summer());
    const auto event = row();
    auto& screen = open<EditEventBackgroundViewController>(EditScreen::Background, event);
    screen.gradientCollection.tapItem(2);
    screen.prevButton.tap();
    program.settle();
    EXPECT_EQ(event->gradient(), 2);
    EXPECT_EQ(row()->gradient(), NO_VALUE);
}

TEST_F(EditBackgroundTest, WithoutAnIdentityAChoiceStopsTheProgramAndNoneDoesNot) {
    EventRecord record;
    record.title = "Summer";
    record.dateEvent = "25 June 2030";
    record.color = 0;
    record.gradient = NO_VALUE;
    const auto event = std::make_shared<EventCoreData>(record);
    auto& screen = open<EditEventBackgroundViewController>(EditScreen::Background, event);
    screen.colorCollection.tapItem(1);
    EXPECT_THROW(screen.nextButton.tap(), fakes::ProgramStopped);
    screen.editBack = 0;
    screen.nextButton.tap();
    EXPECT_EQ(program.stack().top()->screenName(), "CustomTabBarController");
}

} // namespace
} // namespace tessivo
