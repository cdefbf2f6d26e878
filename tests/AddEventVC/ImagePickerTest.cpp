#include "AddEventVC/EventBackgroundViewController.h"
#include "AddEventVC/EventDateAndTimeViewController.h"
#include "AddEventVC/ReminderViewController.h"
#include "Event/CoreDataStack.h"
#include "MainVC/EventCell.h"
#include "Ports/ImageCoding.h"
#include "support/Pictures.h"
#include "support/Program.h"
#include "support/Wizard.h"

#include <gmock/gmock.h>

namespace tessivo {
namespace {

using testing::ElementsAre;

constexpr auto photo = "/home/ada/sea side.jpg";

/// A small file whose header claims a hundred million pixels.
std::string hugePhoto(const ImageCoding& images) {
    std::string data = *images.jpeg(stripes(8, 8), 1);
    const auto frame = data.find("\xFF\xC0"); // its length, depth, height and width follow
    data.replace(frame + 5, 4, std::string("\x27\x10\x27\x10", 4));
    return data;
}

/// The background step with the photo library open on it. The network answers for files, too.
class ImagePickerTest : public testing::Test {
protected:
    ImagePickerTest() {
        openWizard(program).textField.editTo("Summer");
        next<EventDateAndTimeViewController>(program).datePicker.pick(program.timeline.now() +
                                                                      Seconds(10 * 86400));
        next<ReminderViewController>(program);
        chooser = &next<EventBackgroundViewController>(program);
        (void)program.console.take();
    }

    /// Chooses the file in the desktop's window.
    void choose(const std::string& path) {
        program.photoLibrary.choose(std::optional(Url::ofFile(path)));
        program.settle();
    }
    /// The same; it holds `data`.
    void choose(const Result<HttpResponse>& answer) {
        choose(std::string(photo));
        program.http.answer(answer);
        program.settle();
    }
    void choose(const Bitmap& picture) {
        choose(HttpResponse{std::nullopt, {}, *program.images.png(picture)});
    }
    /// The picker with a photo in it, chosen on the background step.
    ImagePickerController& open(const Bitmap& picture) {
        chooser->photosButton.tap();
        choose(picture);
        return program.top<ImagePickerController>();
    }
    [[nodiscard]] const Bitmap& preview() const { return *chooser->eventView.photoView.image().bitmap; }

    Program program;
    EventBackgroundViewController* chooser;
};

TEST_F(ImagePickerTest, TheFramedPartIsPreviewedAndTheFileBecomesTheBackground) {
    chooser->eventData->unsplashPath = "https://i.test/former";
    chooser->photosButton.tap();
    program.settle();
    EXPECT_EQ(program.stack().top(), chooser) << "the step stays while the desktop's window is open";
    choose(std::string(photo));
    auto& picker = program.top<ImagePickerController>();
    EXPECT_TRUE(picker.chooseButton.isHidden()) << "there is nothing to choose yet";
    EXPECT_EQ(program.http.exchanges().back()->request.url, "file:///home/ada/sea%20side.jpg");
    program.http.answer(HttpResponse{std::nullopt, {}, *program.images.png(stripes(20, 5))});
    program.settle();
    EXPECT_FALSE(picker.chooseButton.isHidden());
    const ui::Size frame = picker.cropView.bounds().size();
    EXPECT_EQ(frame, (ui::Size{358, 200}));
    EXPECT_EQ(picker.imageView.frame().size(), (ui::Size{800, 200})) << "it just covers the frame";
    EXPECT_EQ(picker.cropView.contentOffset(), (ui::Point{221, 0})) << "its middle is in the frame";

    picker.cropView.scrolledTo(picker.cropView.nearestOffset({5000, 50})); // to the right end
    picker.chooseButton.tap();
    program.settle();
    ASSERT_EQ(program.stack().top(), chooser);
    EXPECT_EQ(preview().height, 5);
    EXPECT_EQ(preview().width, 9); // 358 of 800 points of 20 columns, grown to whole ones
    EXPECT_EQ(redAt(preview(), 8), 190);
    EXPECT_EQ(chooser->eventView.photoView.contentMode(), ui::ContentMode::AspectFill);
    EXPECT_EQ(chooser->eventData->photoPath, "file:///photos/1.jpg");
    const auto kept = program.images.decode(program.photoLibrary.kept.back(), std::nullopt);
    EXPECT_EQ((PixelSize{kept->width, kept->height}), (PixelSize{9, 5})) << "a file of what was framed";
    EXPECT_EQ(chooser->eventData->gradient, NO_VALUE);
    EXPECT_EQ(chooser->eventData->color, NO_VALUE);
    EXPECT_EQ(chooser->eventData->unsplashPath, std::nullopt);
    EXPECT_EQ(chooser->selectedGradientIndexPath, std::nullopt);

    chooser->nextButton.tap();
    program.settle();
    EXPECT_TRUE(program.console.take().empty());
    program.restart();
    const auto row = program.services().coreDataStack().fetchEvents().front();
    EXPECT_EQ(row->photoPath(), "file:///photos/1.jpg");
    const auto cell = std::make_shared<EventCell>(program.services());
    cell->configure(*row);
    EXPECT_EQ(program.http.exchanges().back()->request.url, row->photoPath());
    program.http.answer(HttpResponse{std::nullopt, {}, *program.images.png(stripes(20, 5))});
    program.timeline.runPosted();
    EXPECT_EQ(cell->photoImage.image().bitmap->width, 20) << "the card shows all of the file";
    cell->configure(*row);
    program.http.answer(Error{std::string(urlErrorDomain), UrlErrorFileDoesNotExist, "gone"});
    program.timeline.runPosted();
    EXPECT_FALSE(cell->photoImage.image().isSet());
    EXPECT_EQ(program.console.take().back(), "Ошибка загрузки изображения: gone");
}

TEST_F(ImagePickerTest, EnlargingKeepsWhatIsUnderTheFingersAndStaysWithinBounds) {
    auto& picker = open(stripes(16, 8)); // 400 x 200 points; 21 of them beyond each side
    picker.cropView.zoomedTo(2, {100, 50});
    EXPECT_EQ(picker.imageView.frame().size(), (ui::Size{800, 400}));
    EXPECT_EQ(picker.cropView.contentOffset(), (ui::Point{142, 50})) << "121, 50 of the photo under 100, 50";
    picker.cropView.zoomedTo(9, {0, 0});
    EXPECT_EQ(picker.cropView.zoomScale(), 4);
    picker.cropView.zoomedTo(0.1, {358, 200});
    EXPECT_EQ(picker.cropView.zoomScale(), 1);
    const ui::Point offset = picker.cropView.contentOffset();
    EXPECT_GE(offset.x, 0);
    EXPECT_LE(offset.x, 42);
    EXPECT_EQ(offset.y, 0) << "the photo covers the frame";
    picker.cropView.zoomedTo(4, {0, 0});
    picker.cropView.scrolledTo({0, 0});
    picker.chooseButton.tap();
    EXPECT_EQ(preview().width, 4); // 358 of 1600 points of 16 columns
    EXPECT_EQ(preview().height, 2);
    EXPECT_EQ(redAt(preview(), 0), 0);
}

TEST_F(ImagePickerTest, CancellingInEitherWindowChangesNothing) {
    chooser->photosButton.tap();
    program.photoLibrary.choose(std::optional<Url>());
    program.settle();
    EXPECT_EQ(program.stack().top(), chooser);

    auto& picker = open(stripes(20, 5));
    picker.cancelButton.tap();
    program.settle();
    EXPECT_EQ(program.stack().top(), chooser);
    EXPECT_EQ(chooser->eventData->gradient, 1);
    EXPECT_EQ(chooser->eventData->photoPath, std::nullopt);
    EXPECT_EQ(chooser->selectedGradientIndexPath, 1);
    EXPECT_FALSE(chooser->eventView.photoView.image().isSet());
}

TEST_F(ImagePickerTest, AnotherPhotoCanBeChosenAndTurningAwayKeepsTheFirst) {
    auto& picker = open(stripes(20, 5));
    picker.libraryButton.tap();
    program.photoLibrary.choose(std::optional<Url>());
    EXPECT_EQ(picker.imageView.image().bitmap->width, 20);
    picker.libraryButton.tap();
    choose(stripes(12, 5));
    EXPECT_EQ(picker.imageView.image().bitmap->width, 12);
    EXPECT_EQ(program.stack().top(), &picker);
}

TEST_F(ImagePickerTest, WhatCannotBeShownIsSaidAndAnotherCanBeChosen) {
    auto& picker = open(stripes(20, 5));
    picker.libraryButton.tap();
    for (const auto& [answer, lines] :
         {std::pair(Result<HttpResponse>(HttpResponse{std::nullopt, {}, "no picture"}), 1),
          std::pair(Result<HttpResponse>(HttpResponse{std::nullopt, {}, hugePhoto(program.images)}), 1),
          std::pair(Result<HttpResponse>(Error{std::string(urlErrorDomain), UrlErrorTooLarge, "large"}),
                    2)}) {
        choose(answer);
        const auto said = program.console.take();
        EXPECT_EQ(said.size(), static_cast<std::size_t>(lines));
        EXPECT_EQ(said.back(), "Не удалось загрузить изображение.");
        EXPECT_EQ(picker.messageLabel.text(), "This photo cannot be shown.");
        EXPECT_TRUE(picker.chooseButton.isHidden());
        picker.libraryButton.tap();
    }
    program.photoLibrary.choose(Error{"PhotoLibrary", 1, "There is no window."});
    EXPECT_EQ(picker.messageLabel.text(), "There is no window.");
    picker.libraryButton.tap();
    choose(stripes(20, 5));
    EXPECT_EQ(picker.messageLabel.text(), "");
    EXPECT_FALSE(picker.chooseButton.isHidden());
    program.photoLibrary.failure = Error{"PhotoLibrary", 28, "There is no room left."};
    picker.chooseButton.tap();
    EXPECT_EQ(picker.messageLabel.text(), "There is no room left.");
    EXPECT_EQ(chooser->eventData->photoPath, std::nullopt);
}

TEST_F(ImagePickerTest, ADesktopWithoutAChooserIsToldInThePicker) {
    chooser->photosButton.tap();
    program.photoLibrary.choose(Error{"PhotoLibrary", 1, "There is no window."});
    program.settle();
    EXPECT_EQ(program.top<ImagePickerController>().messageLabel.text(), "There is no window.");
}

TEST_F(ImagePickerTest, APhotoThatComesAfterALaterChoiceIsDropped) {
    for (const auto& late : {*program.images.png(stripes(20, 5)), std::string("no picture")}) {
        chooser->photosButton.tap();
        const auto first = program.http.exchanges().size();
        choose("/slow.jpg");
        auto& picker = program.top<ImagePickerController>();
        picker.libraryButton.tap();
        choose(stripes(12, 5));
        program.http.answer(first, HttpResponse{std::nullopt, {}, late});
        program.settle();
        EXPECT_EQ(picker.imageView.image().bitmap->width, 12);
        EXPECT_EQ(picker.messageLabel.text(), "");
        picker.cancelButton.tap();
        program.settle();
    }
}

TEST_F(ImagePickerTest, AnAnswerAfterTheStepOrThePickerWasLeftIsDropped) {
    chooser->photosButton.tap();
    chooser->nextButton.tap();
    program.settle();
    auto* const list = program.stack().top();
    choose(std::string(photo));
    EXPECT_EQ(program.stack().top(), list);
    EXPECT_TRUE(program.http.exchanges().empty());
}

TEST_F(ImagePickerTest, APhotoThatComesAfterThePickerWasLeftIsDropped) {
    chooser->photosButton.tap();
    choose(std::string(photo));
    program.top<ImagePickerController>().cancelButton.tap();
    program.settle();
    program.http.answer(HttpResponse{std::nullopt, {}, *program.images.png(stripes(20, 5))});
    program.settle();
    EXPECT_EQ(program.stack().top(), chooser);
    EXPECT_EQ(chooser->eventData->photoPath, std::nullopt);
}

TEST_F(ImagePickerTest, ASourceWithoutAnAddressLeavesTheEventWithoutABackground) {
    const ui::Image picture{{}, std::make_shared<const Bitmap>(stripes(4, 4))};
    for (const auto& address : {std::optional<std::string>(), std::optional<std::string>("no address")}) {
        chooser->imagePickerControllerDidFinishPickingMedia(open(stripes(4, 4)), {picture, picture, address});
        program.settle();
        EXPECT_EQ(chooser->eventData->photoPath, std::nullopt);
        EXPECT_EQ(chooser->eventData->gradient, NO_VALUE);
    }
    chooser->nextButton.tap();
    program.settle();
    const auto row = program.services().coreDataStack().fetchEvents().front();
    const auto cell = std::make_shared<EventCell>(program.services());
    EXPECT_THROW(cell->configure(*row), fakes::ProgramStopped);
}

TEST_F(ImagePickerTest, ASourceWithoutAnEditedPictureStopsTheProgram) {
    const ui::Image picture{{}, std::make_shared<const Bitmap>(stripes(4, 4))};
    auto& picker = open(stripes(4, 4));
    EXPECT_THROW(chooser->imagePickerControllerDidFinishPickingMedia(picker, {picture, std::nullopt, photo}),
                 fakes::ProgramStopped);
}

} // namespace
} // namespace tessivo
