#include "AddEventVC/EventTitleViewController.h"

#include "AddEventVC/EventDateAndTimeViewController.h"
#include "Support/LocalizationVariables.h"
#include "support/Program.h"
#include "support/Wizard.h"

#include <gmock/gmock.h>

namespace tessivo {
namespace {

class TitleStepTest : public testing::Test {
protected:
    TitleStepTest() : step(openWizard(program)) {}

    bool type(const std::string& text) { return step.textField.editTo(text); }
    std::string card() { return step.eventView.eventInformationLabel.text(); }

    Program program;
    EventTitleViewController& step;
};

TEST_F(TitleStepTest, OpensWithSampleWordsAndNextOff) {
    EXPECT_EQ(card(), program.services().localizationVariables().yourEventTitle + "\n" +
                          program.services().localizationVariables().dateOfEvent);
    EXPECT_EQ(step.CountLabel.text(), "Title (0/20)");
    EXPECT_FALSE(step.nextButton.isEnabled());
    step.nextButton.tap();
    EXPECT_FALSE(program.stack().isInTransition());
}

TEST_F(TitleStepTest, TwentyUserPerceivedCharactersFit) {
    struct Case {
        std::string before;
        std::string after;
        bool accepted;
        int count;
    };
    const std::string family = "👨‍👩‍👧‍👦";
    const Case cases[] = {
        {"", "a", true, 1},
        {"", std::string(20, 'x'), true, 20},
        {"", std::string(21, 'x'), false, 0},
        {std::string(20, 'x'), std::string(21, 'x'), false, 20},
        {std::string(20, 'x'), std::string(19, 'x') + "y", true, 20},
        {"", family, true, 1},
        {std::string(19, 'x'), std::string(19, 'x') + family, true, 20},
        {std::string(20, 'x'), std::string(20, 'x') + family, false, 20},
        {"", "Ünïcødé 日本語", true, 11},
        {"gone", "", true, 0},
    };
    for (const auto& [before, after, accepted, count] : cases) {
        type("");
        type(before);
        EXPECT_EQ(type(after), accepted) << before << " to " << after;
        EXPECT_EQ(step.textField.text(), accepted ? after : before);
        EXPECT_EQ(step.CountLabel.text(), "Title (" + std::to_string(count) + "/20)");
    }
    EXPECT_EQ(step.CountLabel.styledText().runs[1].font.size, 15);
}

TEST_F(TitleStepTest, TheCardFollowsEachChangeAndTheSampleDoesNotComeBack) {
    type(" ");
    EXPECT_TRUE(step.nextButton.isEnabled()) << "a blank is a title";
    type("Summer");
    EXPECT_EQ(card().substr(0, 7), "Summer\n");
    type("");
    EXPECT_EQ(card().front(), '\n');
    EXPECT_FALSE(step.nextButton.isEnabled());
    EXPECT_EQ(step.CountLabel.text(), "Title (0/20)");
}

TEST_F(TitleStepTest, ReturnAndATapBesidePutTheKeyboardAwayAndGoNowhere) {
    step.textField.beginEditing();
    EXPECT_TRUE(step.textField.pressReturn());
    EXPECT_FALSE(step.textField.isEditing());
    step.textField.beginEditing();
    step.view().tap();
    EXPECT_FALSE(step.textField.isEditing());
    EXPECT_EQ(program.stack().top(), &step);
}

TEST_F(TitleStepTest, BackForgetsTheLaterStepAndKeepsTheTitle) {
    type("Summer");
    auto& first = next<EventDateAndTimeViewController>(program);
    first.toggleSwitch.toggle();
    first.prevButton.tap();
    program.settle();
    EXPECT_EQ(step.textField.text(), "Summer");
    program.timeline.advance(Seconds(86400));
    auto& second = next<EventDateAndTimeViewController>(program);
    EXPECT_TRUE(second.toggleSwitch.isOn());
    EXPECT_EQ(second.dayField.text(), "22 June 2030");
    EXPECT_EQ(second.eventData->title, "Summer");
}

} // namespace
} // namespace tessivo
