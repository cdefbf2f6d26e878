#include "AddEventVC/EventBackgroundViewController.h"
#include "AddEventVC/EventDateAndTimeViewController.h"
#include "AddEventVC/ReminderViewController.h"
#include "Event/CoreDataStack.h"
#include "MainVC/EventCell.h"
#include "Ports/DocumentFiles.h"
#include "Ports/ImageCoding.h"
#include "UnsplashPicker/PickerServices.h"
#include "support/Pictures.h"
#include "support/Program.h"
#include "support/Wizard.h"

#include <gmock/gmock.h>

namespace tessivo {
namespace {

using testing::ElementsAre;
using testing::StartsWith;

/// The background step with the preview of a photo open on it.
class UnsplahImageViewTest : public testing::Test {
protected:
    EventBackgroundViewController& openChooser() {
        openWizard(program).textField.editTo("Summer");
        auto& date = next<EventDateAndTimeViewController>(program);
        date.datePicker.pick(program.timeline.now() + Seconds(10 * 86400));
        next<ReminderViewController>(program);
        return next<EventBackgroundViewController>(program);
    }

    /// A photo as the service gives it.
    static unsplash::UnsplashPhoto photo(const std::string& name) {
        unsplash::UnsplashPhoto photo;
        photo.urls.emplace(unsplash::URLKind::regular, *Url::parse("https://i.test/" + name + "?w=1080"));
        photo.user.name = "Ada L";
        photo.user.links.emplace(unsplash::UserLinkKind::html, *Url::parse("https://x.test/@ada?q=1"));
        return photo;
    }

    /// Chooses a photo and lets its download end.
    void choose(EventBackgroundViewController& chooser, const unsplash::UnsplashPhoto& photo,
                const Bitmap& picture) {
        const auto picker =
            unsplash::UnsplashPicker::make(program.services().photoPicker(), program.services().window(), {});
        chooser.photoPickerDidSelect(*picker, {std::make_shared<const unsplash::UnsplashPhoto>(photo)});
        program.http.answer(200, *program.images.png(picture));
        program.settle();
    }

    Program program;
};

TEST_F(UnsplahImageViewTest, TheRowOpensThePhotoBrowser) {
    auto& chooser = openChooser();
    chooser.imagesButton.tap();
    program.settle();
    auto& picker = program.top<unsplash::UnsplashPicker>();
    EXPECT_EQ(program.http.exchanges().at(0)->request.headers.at("Authorization").size(), 10u + 43u);
    picker.photoPickerViewController().cancelBarButtonItem.tap();
    EXPECT_EQ(program.stack().top(), &chooser);
}

TEST_F(UnsplahImageViewTest, WhatIsInViewBecomesTheBackground) {
    auto& chooser = openChooser();
    choose(chooser, photo("photo-1.jpg"), stripes(20, 10));
    auto& preview = program.top<UnsplahImageView>();
    EXPECT_EQ(program.http.exchanges().back()->request.url, "https://i.test/photo-1.jpg?w=1080");
    const double height = preview.scrollView.bounds().height;
    EXPECT_EQ(preview.contentView.frame().size(), (ui::Size{2 * height, height}));
    EXPECT_EQ(preview.photographerButton.title(), "Ada L");
    const ui::Rect frame = preview.cardFrame.frame(); // in the shape of the card, 358 x 200
    EXPECT_NEAR(frame.width, 390, 0.01);
    EXPECT_NEAR(frame.height, 390.0 * 200 / 358, 0.01);
    EXPECT_NEAR(frame.midY(), preview.scrollView.frame().midY(), 0.01);
    preview.scrollView.scrolledTo({2 * height - 390, 0}); // to the far right
    preview.saveButton.tap();
    program.settle();
    ASSERT_EQ(program.stack().top(), &chooser);
    const auto& shown = *chooser.eventView.photoView.image().bitmap;
    EXPECT_EQ(shown.height, 10);
    EXPECT_EQ(shown.width, 5); // 390 of 1566 points of 20 columns
    EXPECT_EQ(redAt(shown, shown.width - 1), 190);
    EXPECT_EQ(chooser.eventData->unsplashPath, "https://i.test/photo-1.jpg?w=1080");
    EXPECT_EQ(chooser.eventData->gradient, NO_VALUE);
    EXPECT_EQ(chooser.eventData->color, NO_VALUE);
    EXPECT_EQ(chooser.selectedGradientIndexPath, std::nullopt);
    EXPECT_EQ(program.documents.read("photo-1.jpg"), std::nullopt) << "nothing is kept before the end";

    (void)program.console.take();
    chooser.nextButton.tap();
    program.settle();
    const auto path = (program.folder / "documents" / "photo-1.jpg").string();
    EXPECT_THAT(program.console.take(), ElementsAre("Изображение сохранено по пути: " + path, "false"));
    EXPECT_THAT(*program.documents.read("photo-1.jpg"), StartsWith("\xff\xd8"));
    const auto rows = program.services().coreDataStack().fetchEvents();
    const auto cell = std::make_shared<EventCell>(program.services());
    cell->configure(*rows.front());
    ASSERT_EQ(cell->photoImage.image().bitmap->height, 10);
    EXPECT_NEAR(redAt(*cell->photoImage.image().bitmap, 4), 190, 4) << "as good as a file can be";
}

TEST_F(UnsplahImageViewTest, WhatMakesNoJpegIsKeptAsPng) {
    auto& chooser = openChooser();
    choose(chooser, photo("tower"), stripes(1, 70'000));
    program.top<UnsplahImageView>().saveButton.tap();
    program.settle();
    chooser.nextButton.tap();
    program.settle();
    EXPECT_THAT(*program.documents.read("tower"), StartsWith("\x89PNG"));
}

TEST_F(UnsplahImageViewTest, ANarrowPictureIsKeptWhole) {
    auto& chooser = openChooser();
    choose(chooser, photo("p"), stripes(2, 10));
    program.top<UnsplahImageView>().saveButton.tap();
    program.settle();
    EXPECT_EQ(*chooser.eventView.photoView.image().bitmap, stripes(2, 10));
}

TEST_F(UnsplahImageViewTest, GoingBackChangesNothing) {
    auto& chooser = openChooser();
    choose(chooser, photo("p"), stripes(20, 10));
    auto& preview = program.top<UnsplahImageView>();
    preview.scrollView.scrolledTo({100, 0});
    preview.prevButton.tap();
    program.settle();
    EXPECT_EQ(chooser.eventData->gradient, 1);
    EXPECT_EQ(chooser.eventData->unsplashPath, std::nullopt);
    EXPECT_FALSE(chooser.eventView.photoView.image().isSet());
}

TEST_F(UnsplahImageViewTest, AColourAfterAPictureKeepsNoFile) {
    auto& chooser = openChooser();
    choose(chooser, photo("p"), stripes(20, 10));
    program.top<UnsplahImageView>().saveButton.tap();
    program.settle();
    chooser.colorCollection.tapItem(3);
    EXPECT_FALSE(chooser.eventView.photoView.image().isSet());
    chooser.nextButton.tap();
    program.settle();
    EXPECT_EQ(program.documents.read("p"), std::nullopt);
    EXPECT_EQ(program.services().coreDataStack().fetchEvents().front()->unsplashPath(), std::nullopt);
}

TEST_F(UnsplahImageViewTest, APhotoThatDoesNotComeOpensNothing) {
    auto& chooser = openChooser();
    const auto picker =
        unsplash::UnsplashPicker::make(program.services().photoPicker(), program.services().window(), {});
    auto without = photo("p");
    without.urls.clear();
    chooser.photoPickerDidSelect(*picker, {});
    chooser.photoPickerDidSelect(*picker, {std::make_shared<const unsplash::UnsplashPhoto>(without)});
    EXPECT_TRUE(program.http.exchanges().empty());
    for (const auto& body : {"", "<html>"}) {
        chooser.photoPickerDidSelect(*picker, {std::make_shared<const unsplash::UnsplashPhoto>(photo("p"))});
        program.http.answer(200, body);
        program.settle();
        EXPECT_EQ(program.stack().top(), &chooser);
    }
}

TEST_F(UnsplahImageViewTest, ThePhotographerIsCreditedWithTheReferral) {
    auto& chooser = openChooser();
    choose(chooser, photo("p"), stripes(20, 10));
    auto& preview = program.top<UnsplahImageView>();
    preview.photographerButton.tap();
    EXPECT_THAT(program.links.opened,
                ElementsAre("https://x.test/@ada?q=1&utm_source=Tessivo&utm_medium=referral"));
    preview.profileURL.reset();
    preview.photographerButton.tap();
    EXPECT_EQ(program.links.opened.size(), 1u);
    EXPECT_EQ(program.stack().top(), &preview);
}

} // namespace
} // namespace tessivo
