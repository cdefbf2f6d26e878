#include "Event/CoreDataStack.h"
#include "Event/EventItem.h"
#include "Extension/TabBar/CustomTabBarController.h"
#include "MainVC/MainViewController.h"
#include "Ports/SavedSettings.h"
#include "Support/SettingKeys.h"
#include "support/Events.h"
#include "support/Program.h"

#include <gmock/gmock.h>

namespace tessivo {
namespace {

class StartTest : public testing::Test {
protected:
    SavedSettings& settings() { return program.services().platform().settings; }

    ListType firstList() {
        auto& tabs = program.top<CustomTabBarController>();
        return dynamic_cast<MainViewController&>(*tabs.selectedViewController()).type;
    }

    Program program;
};

TEST_F(StartTest, TheFirstLaunchFillsTheSettings) {
    EXPECT_EQ(settings().integer(settingKeys::defaultScreen), 0);
    EXPECT_EQ(settings().integer(settingKeys::eventSize), 1);
    EXPECT_EQ(settings().integer(settingKeys::secondOpen), 1);
    EXPECT_EQ(settings().boolean(settingKeys::isFirstLaunch), true);
    EXPECT_EQ(firstList(), ListType::Past);
}

TEST_F(StartTest, LaterLaunchesCountAndKeepWhatWasChosen) {
    settings().setInteger(settingKeys::eventSize, 2);
    settings().setInteger(settingKeys::defaultScreen, 1);
    program.restart();
    program.restart();
    EXPECT_EQ(settings().integer(settingKeys::secondOpen), 3);
    EXPECT_EQ(settings().integer(settingKeys::eventSize), 2);
    EXPECT_EQ(firstList(), ListType::Future);
}

TEST_F(StartTest, ALaunchOverwritesNoSettingThatIsThere) {
    settings().setInteger(settingKeys::eventSize, 0); // the smallest cards
    program.restart();
    EXPECT_EQ(settings().integer(settingKeys::eventSize), 0);
}

TEST_F(StartTest, ALaunchCounterOfAnotherKindStopsTheProgram) {
    settings().setText(settingKeys::secondOpen, "2");
    EXPECT_THROW(program.restart(), fakes::ProgramStopped);
}

TEST_F(StartTest, EachLaunchFetchesTheSwitchesTwiceAndWaitsForNeither) {
    EXPECT_TRUE(program.console.lines().empty());
    program.timeline.runPosted();
    EXPECT_EQ(program.console.take(), std::vector<std::string>(2, "Error: No error available."));

    // The lists can be used even if the service never answers.
    program.remoteProject = {"http://service", "http://service", "project", "app", "key"};
    program.restart();
    program.timeline.advance(Seconds(10));
    EXPECT_EQ(program.http.running(), 1U) << "the second fetch waits for the installation of the first";
    program.top<CustomTabBarController>().addButton.tap();
    program.settle();
    EXPECT_EQ(program.stack().screens().size(), 2U);
    EXPECT_TRUE(program.console.lines().empty());
}

TEST_F(StartTest, ALaunchMovesWhatHasPassedMeanwhile) {
    EventItem item = plainEvent("Train", "21 June 2030", program.services().platform().uuids.random());
    item.timeEvent = "11:00 AM";
    program.services().coreDataStack().addEvent(item);
    program.timeline.setWall(program.timeline.now() + Seconds(3600));
    program.restart();
    EXPECT_FALSE(program.services().coreDataStack().fetchEvent(*item.id)->eventType());
}

} // namespace
} // namespace tessivo
