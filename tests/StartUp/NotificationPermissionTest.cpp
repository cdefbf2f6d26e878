#include "Support/StartUp/NotificationPermission.h"

#include "Extension/TabBar/CustomTabBarController.h"
#include "Interface/AlertController.h"
#include "SettingVC/NotificationSettingsController.h"
#include "Support/StartUp/PendingScreens.h"
#include "Support/StartUp/UnshownRemindersAlert.h"
#include "support/Program.h"

#include <gmock/gmock.h>

namespace tessivo {
namespace {

using testing::ElementsAre;

class PermissionTest : public testing::Test {
protected:
    Program program;
    std::vector<bool> answers;
    PendingScreens pending{program.stack()};
    NotificationPermission permission{pending,
                                      program.stack().window(),
                                      program.notifications,
                                      program.timeline,
                                      program.services().platform().texts,
                                      [this](bool allowed) { answers.push_back(allowed); }};
};

TEST_F(PermissionTest, TheQuestionWaitsForTheSlideToEnd) {
    program.top<CustomTabBarController>().addButton.tap();
    permission.ask([this](bool allowed) { answers.push_back(allowed); });
    EXPECT_EQ(program.stack().screens().size(), 2U);
    program.settle();
    auto& question = program.top<ui::AlertController>();
    question.cancel(); // Escape
    EXPECT_NE(&question, program.stack().top());
    EXPECT_THAT(answers, ElementsAre(false));
}

TEST_F(PermissionTest, QuestionsFollowOneAnother) {
    permission.ask([this](bool) { answers.push_back(false); });
    permission.openSettings();
    program.top<ui::AlertController>().choose(0);
    EXPECT_EQ(program.stack().top()->screenName(), "NotificationSettingsController");
}

TEST_F(PermissionTest, ThatNothingShowsRemindersIsToldOnce) {
    UnshownRemindersAlert alert(pending, program.stack().window(), program.services().platform().texts);
    alert.show();
    alert.show();
    EXPECT_EQ(program.top<ui::AlertController>().title(), "notShown.title");
    program.top<ui::AlertController>().cancel(); // Escape
    program.settle();
    EXPECT_EQ(dynamic_cast<ui::AlertController*>(program.stack().top()), nullptr);
}

TEST_F(PermissionTest, ThePageShowsThePresentAnswerAndStoresAnother) {
    program.notifications.setStatus(AuthorizationStatus::Authorized);
    permission.openSettings();
    auto& page = program.top<NotificationSettingsController>();
    EXPECT_FALSE(page.allowSwitch.isUserInteractionEnabled());
    program.notifications.run();
    program.timeline.runPosted();
    EXPECT_TRUE(page.allowSwitch.isOn());
    EXPECT_TRUE(page.allowSwitch.isUserInteractionEnabled());
    page.allowSwitch.toggle();
    EXPECT_THAT(answers, ElementsAre(false));
}

} // namespace
} // namespace tessivo
