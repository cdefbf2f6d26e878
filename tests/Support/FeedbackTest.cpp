#include "Support/Feedback/AlertManager.h"
#include "Support/Feedback/DeviceName.h"
#include "Support/Feedback/MailManager.h"
#include "Support/Feedback/RateUs.h"
#include "Support/SettingKeys.h"

#include "Interface/AlertController.h"
#include "Interface/Animation.h"
#include "Interface/PresentationStack.h"
#include "Support/LocalizationVariables.h"
#include "fakes/KeysAsTexts.h"
#include "fakes/MemorySavedSettings.h"
#include "fakes/StandInDevice.h"
#include "fakes/Timeline.h"
#include "support/PlainScreen.h"

#include <gmock/gmock.h>

namespace tessivo {
namespace {

using testing::Optional;

class FeedbackTest : public testing::Test {
protected:
    FeedbackTest() { stack.setRoot(root); }

    [[nodiscard]] ui::AlertController* alert() const {
        return dynamic_cast<ui::AlertController*>(stack.top());
    }

    fakes::Timeline line;
    ui::MainScreen screen;
    ui::Animations animations{line, line};
    ui::WindowContext window{screen, animations};
    ui::PresentationStack stack{window};
    std::shared_ptr<PlainScreen> root = std::make_shared<PlainScreen>(window);
    fakes::KeysAsTexts table;
    LocalizationVariables texts{table};
    fakes::StandInDevice device;
    Bundle bundle{"1.2", "34"};
    fakes::RecordingMail mail;
    fakes::RecordingReviews reviews;
    MailManager mailManager{window, mail, table, device, bundle, "help@example.org"};
    AlertManager alertManager{window, texts, mailManager, reviews, line};
};

TEST_F(FeedbackTest, AMailNamesDeviceSystemAndVersion) {
    mailManager.send(*root, "file:///tmp/some%20folder/log.txt");
    ASSERT_EQ(mail.messages.size(), 1U);
    const MailMessage& message = mail.messages.front();
    EXPECT_EQ(message.recipient, "help@example.org");
    EXPECT_EQ(message.subject, "Tessivo — User Question");
    EXPECT_EQ(message.htmlBody, "<p>Device: PinePhone <p>iOS: Debian GNU/Linux 12 (bookworm) "
                                "<p>App Version: 1.2 (34)</p> </p>");
    ASSERT_TRUE(message.attachment);
    EXPECT_EQ(message.attachment->address, "file:///tmp/some%20folder/log.txt");
    EXPECT_EQ(message.attachment->mimeType, "application/octet-stream");
    EXPECT_EQ(message.attachment->fileName, "log.txt");
    EXPECT_EQ(stack.top(), root.get());

    mail.finish(Error{"Desktop", 1, "No mail program took the message."});
    ASSERT_TRUE(alert());
    EXPECT_EQ(alert()->message(), "No mail program took the message.");
}

TEST_F(FeedbackTest, WithoutAMailProgramAnAlertSaysSo) {
    mail.canSend = false;
    mailManager.send(*root);
    EXPECT_TRUE(mail.messages.empty());
    ASSERT_TRUE(alert());
    EXPECT_EQ(alert()->title(), "Mail Error");
    EXPECT_EQ(alert()->message(), "Your device has not been configured to send e-mails");
    ASSERT_EQ(alert()->actions().size(), 1U);
    EXPECT_EQ(alert()->actions()[0].title, "alertOk");
    EXPECT_EQ(alert()->actions()[0].style, ui::AlertActionStyle::Default);
}

TEST_F(FeedbackTest, ANoToTheRateAlertLeadsToAMailAndAYesToAReview) {
    alertManager.showRateAlert(*root);
    ASSERT_TRUE(alert());
    EXPECT_EQ(alert()->title(), "alertRate");
    EXPECT_EQ(alert()->message(), "");
    ASSERT_EQ(alert()->actions().size(), 2U);
    EXPECT_EQ(alert()->actions()[0].title, "alertNo");
    EXPECT_EQ(alert()->actions()[0].style, ui::AlertActionStyle::Destructive);
    EXPECT_EQ(alert()->actions()[1].title, "alertYes");
    EXPECT_EQ(alert()->actions()[1].style, ui::AlertActionStyle::Default);
    alert()->choose(0);
    line.advance(Seconds(1));
    EXPECT_EQ(mail.messages.size(), 1U);
    EXPECT_EQ(reviews.requests, 0);

    alertManager.showRateAlert(*root);
    alert()->choose(1);
    EXPECT_EQ(reviews.requests, 0) << "the machine is asked in a later turn";
    line.advance(Seconds(1));
    EXPECT_EQ(reviews.requests, 1);

    reviews.foreground = false;
    alertManager.requestReview();
    line.advance(Seconds(1));
    EXPECT_EQ(reviews.requests, 1);
}

TEST_F(FeedbackTest, TheRemoteChoiceCountsWithANetworkOnly) {
    fakes::MemorySavedSettings settings;
    fakes::StandInReachability network;
    EXPECT_EQ(rateUsText(settings, network), "0");
    settings.setText(settingKeys::rateUs, "1");
    EXPECT_EQ(rateUsText(settings, network), "1");
    network.answer = 0;
    EXPECT_EQ(rateUsText(settings, network), "0");

    for (const auto& [text, number] :
         std::initializer_list<std::pair<const char*, std::optional<long>>>{{"1", 1},
                                                                            {"+1", 1},
                                                                            {"-1", -1},
                                                                            {"007", 7},
                                                                            {"", {}},
                                                                            {"+", {}},
                                                                            {"-", {}},
                                                                            {"+-1", {}},
                                                                            {" 1", {}},
                                                                            {"1 ", {}},
                                                                            {"1.0", {}},
                                                                            {"one", {}},
                                                                            {"99999999999999999999", {}}})
        EXPECT_EQ(wholeNumber(text), number) << text;
}

TEST_F(FeedbackTest, KnownModelsHaveTheirNames) {
    for (const auto& [identifier, name] :
         {std::pair{"iPhone14,6", "iPhone SE (3rd generation)"}, std::pair{"iPhone10,3", "iPhone X"},
          std::pair{"iPhone10,6", "iPhone X"},
          std::pair{"iPad13,11", "iPad Pro (12.9-inch) (5th generation)"},
          std::pair{"AppleTV5,3", "Apple TV"}, std::pair{"AppleTV6,2", "Apple TV 4K"},
          std::pair{"AudioAccessory1,1", "HomePod"}, std::pair{"AudioAccessory5,1", "HomePod mini"},
          std::pair{"iPhone14,9", "iPhone14,9"}, std::pair{"iPhone14,06", "iPhone14,06"},
          std::pair{"iPhone14,", "iPhone14,"}, std::pair{"Rev 1, Board", "Rev 1, Board"},
          std::pair{"PinePhone", "PinePhone"}}) {
        device.model = identifier;
        EXPECT_EQ(deviceName(device), name);
    }
    for (const auto* simulator : {"i386", "x86_64", "arm64"}) {
        device.model = simulator;
        device.simulated = "iPhone15,2";
        EXPECT_EQ(deviceName(device), "Simulator iPhone 14 Pro");
        device.simulated.reset();
        EXPECT_EQ(deviceName(device), std::string("Simulator ") + simulator);
    }
}

} // namespace
} // namespace tessivo
