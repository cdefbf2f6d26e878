#include "Extension/TabBar/CustomTabBarController.h"

#include "AddEventVC/EventTitleViewController.h"
#include "Interface/AlertController.h"
#include "MainVC/MainViewController.h"
#include "Ports/SavedSettings.h"
#include "Support/ScreenFactory.h"
#include "Support/SettingKeys.h"
#include "support/Program.h"

#include <gmock/gmock.h>

namespace tessivo {
namespace {

class TabShellTest : public testing::Test {
protected:
    CustomTabBarController& tabs() { return program.top<CustomTabBarController>(); }

    Program program;
};

TEST_F(TabShellTest, TheTabsStandInOrderWithTheirColours) {
    ASSERT_EQ(tabs().tabBar.items().size(), 2U);
    const auto& past = tabs().tabBar.items()[0];
    const auto& future = tabs().tabBar.items()[1];
    EXPECT_EQ(past.title, "Past");
    EXPECT_EQ(past.selectedImageName, "pastSelect");
    EXPECT_EQ(past.selectedTitleColor, ui::ColorRef::named("pastColor"));
    EXPECT_EQ(future.title, "Future");
    EXPECT_EQ(future.selectedImageName, "futureSelect");
    EXPECT_EQ(future.selectedTitleColor, ui::ColorRef::named("futureColor"));
}

TEST_F(TabShellTest, TitlesAtRestHaveTheColourOfTheDefaultTab) {
    EXPECT_EQ(tabs().tabBar.items()[1].titleColor, ui::ColorRef::named("pastColor"));
    program.services().platform().settings.setInteger(settingKeys::defaultScreen, 1);
    program.restart();
    EXPECT_EQ(tabs().tabBar.items()[0].titleColor, ui::ColorRef::named("futureColor"));
}

TEST_F(TabShellTest, TheRatingPromptComesAtTheSecondLaunchOnly) {
    struct Case {
        long launches;
        std::optional<std::string> rateUs;
        bool connected;
        bool foreground;
        int reviews;
        bool alert;
        long launchesAfter;
    };
    const Case cases[] = {
        {1, "0", true, true, 0, false, 1}, {2, "0", true, true, 1, false, 3},
        {2, {}, true, true, 1, false, 3},  {2, "0", true, false, 0, false, 3},
        {2, "1", true, true, 0, true, 3},  {2, "1", false, true, 1, false, 3},
        {2, "2", true, true, 0, false, 2}, {2, "+1", true, true, 0, false, 2},
        {2, "", true, true, 0, false, 2},  {3, "0", true, true, 0, false, 3},
        {3, "1", true, true, 0, false, 3},
    };
    program.timeline.runPosted();
    for (const auto& [launches, rateUs, connected, foreground, reviews, alert, launchesAfter] : cases) {
        SCOPED_TRACE(std::to_string(launches) + " " + rateUs.value_or("absent"));
        SavedSettings& settings = program.services().platform().settings;
        settings.setInteger(settingKeys::secondOpen, launches);
        settings.remove(settingKeys::rateUs);
        if (rateUs)
            settings.setText(settingKeys::rateUs, *rateUs);
        program.network.answer = connected ? NetworkReachability::reachable : 0U;
        program.reviews.foreground = foreground;
        program.reviews.requests = 0;
        program.stack().setRoot(program.services().screens().makeTabShell());
        program.timeline.runPosted();
        EXPECT_EQ(program.reviews.requests, reviews);
        EXPECT_EQ(dynamic_cast<ui::AlertController*>(program.stack().top()) != nullptr, alert);
        EXPECT_EQ(settings.integer(settingKeys::secondOpen), launchesAfter);
    }
}

TEST_F(TabShellTest, TheAddButtonStandsHalfOverTheBarByTheScreensWidth) {
    program.screen.resize({586, 1000}, 1);
    EXPECT_EQ(tabs().addButton.frame().size(), (ui::Size{100, 100}));
    EXPECT_NEAR(tabs().tabBar.frame().minY() - tabs().addButton.frame().minY(), 50, 1e-9);
    EXPECT_NEAR(tabs().addButton.frame().midX(), 293, 1e-9);
    program.screen.resize({834, 1194}, 2);
    EXPECT_EQ(tabs().addButton.frame().size(), (ui::Size{72, 72})) << "no larger for a larger screen";
    const auto& cards = dynamic_cast<MainViewController&>(*tabs().selectedViewController()).collection;
    EXPECT_EQ(cards.contentInset().bottom, 1194 - tabs().addButton.frame().minY() + 16)
        << "the last card can be scrolled out from under it";
}

TEST_F(TabShellTest, AddingSlidesTheWizardInAndBackSlidesItOut) {
    auto& shell = tabs();
    shell.addButton.tap();
    auto& wizard = program.top<EventTitleViewController>();
    EXPECT_TRUE(program.stack().isInTransition());
    EXPECT_EQ(wizard.view().drawnFrame().x, 390);
    program.timeline.advance(Seconds(0.05));
    const double left = wizard.view().drawnFrame().x;
    EXPECT_LT(left, 390);
    EXPECT_GT(left, 390 - 50) << "slow at first";
    EXPECT_NEAR(shell.view().drawnFrame().x, left - 390, 1e-9);
    program.settle();
    EXPECT_EQ(wizard.view().drawnFrame().x, 0);
    wizard.prevButton.tap();
    program.settle();
    EXPECT_EQ(program.stack().screens().size(), 1U);
    EXPECT_EQ(shell.view().drawnFrame().x, 0);
}

TEST_F(TabShellTest, EveryAppearanceBuildsNewLists) {
    const auto* former = tabs().viewControllers()[0].get();
    tabs().addButton.tap();
    program.settle();
    program.top<EventTitleViewController>().prevButton.tap();
    program.settle();
    EXPECT_NE(tabs().viewControllers()[0].get(), former);
}

TEST_F(TabShellTest, TheListsHearTabChangesFromTheirFirstShowing) {
    auto& shell = tabs();
    EXPECT_EQ(shell.delegate.lock().get(),
              dynamic_cast<ui::TabBarControllerDelegate*>(shell.viewControllers()[0].get()));
    shell.select(1);
    EXPECT_EQ(shell.delegate.lock().get(),
              dynamic_cast<ui::TabBarControllerDelegate*>(shell.viewControllers()[1].get()));
}

} // namespace
} // namespace tessivo
