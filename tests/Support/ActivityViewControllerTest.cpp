#include "Support/Sharing/ActivityViewController.h"
#include "Interface/AlertController.h"
#include "Interface/Animation.h"
#include "Interface/PresentationStack.h"
#include "fakes/KeysAsTexts.h"
#include "fakes/RecordingPictureSharing.h"
#include "fakes/Timeline.h"
#include "support/PlainScreen.h"

#include <gmock/gmock.h>

namespace tessivo {
namespace {

class ShareSheetTest : public testing::Test {
protected:
    ShareSheetTest() {
        stack.setRoot(root);
        root->present(sheet);
    }

    fakes::Timeline line;
    ui::MainScreen screen;
    ui::Animations animations{line, line};
    ui::WindowContext window{screen, animations};
    fakes::KeysAsTexts texts;
    fakes::RecordingPictureSharing sharing;
    std::shared_ptr<const Bitmap> picture = std::make_shared<Bitmap>(Bitmap{1, 1, {1, 2, 3, 4}});
    ui::PresentationStack stack{window};
    std::shared_ptr<PlainScreen> root = std::make_shared<PlainScreen>(window);
    std::shared_ptr<ActivityViewController> sheet =
        std::make_shared<ActivityViewController>(window, texts, sharing, picture);
};

TEST_F(ShareSheetTest, EachActHandsThePictureOverAndLeaves) {
    const std::vector<std::pair<ui::Button ActivityViewController::*, std::string>> acts{
        {&ActivityViewController::saveButton, "save"},
        {&ActivityViewController::copyButton, "copy"},
        {&ActivityViewController::openButton, "open"},
        {&ActivityViewController::mailButton, "mail"}};
    for (const auto& [button, act] : acts) {
        if (stack.top() == root.get())
            root->present(sheet);
        ((*sheet).*button).tap();
        ASSERT_FALSE(sharing.shared.empty()) << act;
        EXPECT_EQ(sharing.shared.back().act, act);
        EXPECT_EQ(sharing.shared.back().picture, picture);
        EXPECT_EQ(stack.top(), root.get()) << act;
        sharing.shared.back().done(std::nullopt);
        EXPECT_EQ(stack.top() == root.get(), act != "save") << "only a saved picture needs words: " << act;
        if (auto* alert = dynamic_cast<ui::AlertController*>(stack.top())) {
            EXPECT_EQ(alert->title(), "The Picture Was Saved");
            EXPECT_EQ(alert->message(), sharing.savedPath);
            alert->dismiss();
        }
    }
    EXPECT_EQ(sharing.shared.size(), 4U);
}

TEST_F(ShareSheetTest, APictureIsHandedOverOnceHoweverOftenTheButtonIsPressed) {
    sheet->saveButton.tap();
    sheet->saveButton.tap();
    EXPECT_EQ(sharing.shared.size(), 1U);
}

TEST_F(ShareSheetTest, AFailureIsToldOnWhateverStandsOnTopByThen) {
    sheet->mailButton.tap();
    const auto next = std::make_shared<PlainScreen>(window);
    root->present(next);
    sharing.shared.front().done(Error{"PictureSharing", 1, "There is no mail program."});
    const auto* alert = dynamic_cast<ui::AlertController*>(stack.top());
    ASSERT_TRUE(alert);
    EXPECT_EQ(alert->presentingViewController(), next.get());
    EXPECT_EQ(alert->title(), "The Picture Was Not Sent");
    EXPECT_EQ(alert->message(), "There is no mail program.");
}

TEST_F(ShareSheetTest, AnAnswerAfterItsScreenHasGoneIsHeardByNobody) {
    sheet->saveButton.tap();
    stack.setRoot(std::make_shared<PlainScreen>(window));
    root.reset();
    sharing.shared.front().done(Error{"PictureSharing", 1, "The disk is full."});
    EXPECT_EQ(stack.screens().size(), 1U);
}

TEST_F(ShareSheetTest, CancelSharesNothing) {
    sheet->cancelButton.tap();
    EXPECT_EQ(stack.top(), root.get());
    EXPECT_TRUE(sharing.shared.empty());
}

} // namespace
} // namespace tessivo
