#include "OnBordingVC/OnboardingViewController.h"

#include "Extension/TabBar/CustomTabBarController.h"
#include "Interface/NavigationController.h"
#include "OnBordingVC/OnboardingCollectionViewCell.h"
#include "Ports/SavedSettings.h"
#include "Support/SettingKeys.h"
#include "support/Program.h"

#include <gmock/gmock.h>

namespace tessivo {
namespace {

class FirstRunTest : public testing::Test {
protected:
    ui::NavigationController& frame() { return program.top<ui::NavigationController>(); }
    OnboardingViewController& tour() {
        return dynamic_cast<OnboardingViewController&>(frame().topViewController());
    }
    std::optional<bool> tourIsOver() {
        return program.services().platform().settings.boolean(settingKeys::isFirstLaunch);
    }
    double pageShown() { return tour().collectionView.contentOffset().x / 390; }

    Program program{Program::Launch::First};
};

TEST_F(FirstRunTest, TheSlidesShowTheirPicturesAndSentences) {
    const char* const sentences[] = {"Every day that matters, in one place",
                                     "Count down to what's ahead, look back on what was",
                                     "Make each event truly yours"};
    for (int slide = 0; slide < 3; ++slide) {
        tour().collectionView.scrollToItem(slide);
        const auto cell =
            std::dynamic_pointer_cast<OnboardingCollectionViewCell>(tour().collectionView.cellForItem(slide));
        ASSERT_TRUE(cell);
        EXPECT_EQ(cell->imageView.image().name, "onimage" + std::to_string(slide + 1));
        EXPECT_EQ(cell->titleLabel.text(), sentences[slide]);
        EXPECT_EQ(cell->frame().size(), tour().collectionView.bounds().size());
        EXPECT_EQ(tour().currentIndex, (ui::IndexPath{0, slide}));
    }
}

TEST_F(FirstRunTest, ThreePressesLeadToTheTabs) {
    EXPECT_EQ(tourIsOver(), std::nullopt);
    for (const int page : {1, 2}) {
        tour().continueButton.tap();
        EXPECT_EQ(tour().fix, page);
        EXPECT_EQ(pageShown(), page);
    }
    auto& button = tour().continueButton;
    button.tap();
    EXPECT_TRUE(program.stack().isInTransition());
    program.settle();
    EXPECT_NE(dynamic_cast<CustomTabBarController*>(&frame().topViewController()), nullptr);
    EXPECT_EQ(tourIsOver(), true);
    program.restart();
    EXPECT_NE(dynamic_cast<CustomTabBarController*>(program.stack().top()), nullptr);
}

TEST_F(FirstRunTest, ATourThatWasBrokenOffComesAgain) {
    tour().continueButton.tap();
    program.restart();
    EXPECT_EQ(pageShown(), 0);
}

TEST_F(FirstRunTest, SlidesTurnedByHandDoNotMoveTheCount) {
    tour().collectionView.scrolledTo({2 * 390, 0});
    tour().continueButton.tap();
    EXPECT_EQ(pageShown(), 1);
}

TEST_F(FirstRunTest, TheButtonsTitleShowsThePress) {
    auto& button = tour().continueButton;
    button.press(ui::PressEvent::Down);
    EXPECT_EQ(button.titleColor(), ui::ColorRef::named("buttonTap"));
    button.press(ui::PressEvent::UpOutside);
    EXPECT_EQ(button.titleColor(), ui::ColorRef::white());
    EXPECT_EQ(tour().fix, 0);
    button.tap();
    EXPECT_EQ(button.titleColor(), ui::ColorRef::white());
}

TEST_F(FirstRunTest, TheTabsHideTheBarAroundThemWhileTheyAreCovered) {
    for (int press = 0; press < 3; ++press)
        tour().continueButton.tap();
    program.settle();
    auto& around = frame();
    EXPECT_FALSE(around.isNavigationBarHidden());
    dynamic_cast<CustomTabBarController&>(around.topViewController()).addEvent();
    program.settle();
    EXPECT_TRUE(around.isNavigationBarHidden());
    program.stack().top()->dismiss();
    program.settle();
    EXPECT_FALSE(around.isNavigationBarHidden());
}

} // namespace
} // namespace tessivo
