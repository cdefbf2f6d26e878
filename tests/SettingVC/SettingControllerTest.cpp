#include "SettingVC/SettingController.h"

#include "Interface/AlertController.h"
#include "Ports/SavedSettings.h"
#include "Support/SettingKeys.h"
#include "Support/Sharing/ActivityViewController.h"
#include "support/Program.h"
#include "json/NlohmannJson.h"

#include <gmock/gmock.h>

namespace tessivo {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class List final : public SettingControllerDelegate {
public:
    void reloadEvents() override { ++reloads; }
    int reloads = 0;
};

class SettingsTest : public testing::Test {
protected:
    SettingController& open() {
        auto screen = std::make_shared<SettingController>(program.services());
        screen->delegateSettting = list;
        program.stack().top()->present(screen);
        program.settle();
        return *screen;
    }

    SavedSettings& settings() { return program.services().platform().settings; }

    static std::string valueAt(SettingController& screen, int row) {
        return dynamic_cast<SpecialCell&>(*screen.rowsOf(1).cellForItem(row)).mainText.text();
    }

    /// Taps a row and lets what it posts happen.
    void tap(SettingController& screen, int section, int row) {
        screen.rowsOf(section).tapItem(row);
        program.settle();
    }

    Program program;
    std::shared_ptr<List> list = std::make_shared<List>();
};

TEST_F(SettingsTest, SectionsHoldTheirRowsInOrder) {
    std::vector<std::string> rows;
    std::vector<std::size_t> counts;
    auto& screen = open();
    for (const SettingSection& section : screen.sections) {
        counts.push_back(section.items.size());
        if (section.kind != SettingSection::Kind::ourApplications) {
            for (const SettingItem& item : section.items)
                rows.push_back(item.title + ": " + *item.image + ", " + *item.color);
        }
    }
    EXPECT_THAT(counts, ElementsAre(18U, 2U, 2U, 3U));
    EXPECT_THAT(rows, ElementsAre("Event Size: EventSize, FAQ", "Default Screen: defaultScreen, premium",
                                  "Rate Us: star, rate", "Share the App: shareTheApp, share",
                                  "Support: support, privacy", "Terms of Use: termsOfUse, terms",
                                  "Privacy Policy: privacyPolicy, privacy"));
}

TEST_F(SettingsTest, RowsAndApplicationsAreAsTallAsTheScreenSays) {
    auto& screen = open();
    EXPECT_NEAR(screen.rowsOf(1).cellForItem(1)->frame().height, 844 / 16.917, 1e-9);
    const ui::Rect third = screen.rowsOf(0).cellForItem(2)->frame();
    const double width = screen.rowsOf(0).bounds().width * 0.7;
    EXPECT_NEAR(third.x, width, 1e-9);
    EXPECT_EQ(third.y, 0);
    EXPECT_NEAR(third.width, width, 1e-9);
    EXPECT_NEAR(third.height, 844 / 5.64 / 2, 1e-9);
    EXPECT_NEAR(screen.rowsOf(0).contentSize().width, 9 * width, 1e-9);
    const double formerEnd = screen.rowsOf(3).frame().maxY();
    program.screen.resize({390, 640}, 1);
    EXPECT_EQ(screen.rowsOf(1).cellForItem(1)->frame().height, 44) << "a finger still finds it";
    EXPECT_LT(screen.rowsOf(3).frame().maxY(), formerEnd);
    program.screen.setPreferences({.textScale = 2});
    EXPECT_EQ(screen.rowsOf(1).cellForItem(1)->frame().height, 88) << "larger letters need taller rows";
    EXPECT_NEAR(screen.rowsOf(0).cellForItem(2)->frame().height, 2 * 640 / 5.64 / 2, 1e-9);
    EXPECT_GT(screen.rowsOf(3).frame().maxY(), formerEnd);
}

TEST_F(SettingsTest, TheValuesOfTheRowsAreTheSavedOnes) {
    const struct {
        long size, tab;
        const char *sizeText, *tabText;
    } rows[] = {{0, 0, "Small", "Past"},
                {1, 1, "Medium", "Future"},
                {2, 0, "Large", "Past"},
                {7, 2, "Large", "Future"},
                {-1, -1, "Large", "Future"}};
    for (const auto& row : rows) {
        settings().setInteger(settingKeys::eventSize, row.size);
        settings().setInteger(settingKeys::defaultScreen, row.tab);
        auto& screen = open();
        EXPECT_EQ(valueAt(screen, 0), row.sizeText);
        EXPECT_EQ(valueAt(screen, 1), row.tabText);
        screen.doneButton.tap();
    }
    EXPECT_EQ(program.stack().screens().size(), 1U);
}

TEST_F(SettingsTest, AnOptionIsSavedAtOnceAndShowsBehindItsScreen) {
    auto& screen = open();
    tap(screen, 1, 0);
    auto& sizes = program.top<DefaulScreenViewController>();
    EXPECT_EQ(sizes.selectedItem, 1);
    EXPECT_EQ(sizes.titleLabel.text(), "Event Size");
    sizes.tableView.tapItem(2);
    EXPECT_EQ(settings().integer(settingKeys::eventSize), 2);
    EXPECT_EQ(valueAt(screen, 0), "Large");
    EXPECT_EQ(list->reloads, 1);
    sizes.prevButton.tap();
    program.settle();
    tap(screen, 1, 1);
    auto& tabs = program.top<DefaulScreenViewController>();
    EXPECT_EQ(tabs.titleLabel.text(), "Default Screen");
    tabs.tableView.tapItem(1);
    EXPECT_EQ(settings().integer(settingKeys::defaultScreen), 1);
    EXPECT_EQ(valueAt(screen, 1), "Future");
    EXPECT_EQ(list->reloads, 1) << "the tab that opens first changes no card";
}

TEST_F(SettingsTest, OptionsOfASettingWithoutAValueDoNotOpen) {
    auto& screen = open();
    settings().setText(settingKeys::eventSize, "no number");
    tap(screen, 1, 0);
    EXPECT_EQ(program.stack().top(), &screen);
}

TEST_F(SettingsTest, RowsOpenTheirPagesAndDoNotStayLit) {
    auto& screen = open();
    tap(screen, 0, 4);
    EXPECT_THAT(program.links.opened, ElementsAre("https://flathub.org/apps/org.gnome.Weather"));
    EXPECT_FALSE(screen.rowsOf(0).cellForItem(0)->isSelected());
    EXPECT_THAT(screen.rowsOf(0).selectedItems(), IsEmpty());
    program.links.opened.clear();
    for (const int row : {0, 1, 2})
        tap(screen, 3, row); // these addresses are not configured
    EXPECT_THAT(program.links.opened, IsEmpty());
}

TEST_F(SettingsTest, ARowThatDoesNotExistPrintsAnEmptyLine) {
    auto& screen = open();
    (void)program.console.take();
    for (const ui::IndexPath path : {ui::IndexPath{0, 18}, {1, 2}, {2, 2}, {3, 3}, {3, -1}})
        screen.didSelect(path);
    EXPECT_THAT(program.console.lines(), ElementsAre("", "", "", "", ""));
    EXPECT_EQ(program.stack().top(), &screen);
}

TEST_F(SettingsTest, RatingGoesTheWayThatWasChosenFromAfar) {
    constexpr auto review = "https://flathub.org/apps/org.tessivo.Tessivo?action=write-review";
    auto& screen = open();
    tap(screen, 2, 0);
    EXPECT_THAT(program.links.opened, ElementsAre(review)) << "nothing was chosen";
    for (const char* other : {"0", "2", "+7", "-1"}) {
        program.links.opened.clear();
        settings().setText(settingKeys::rateUs, other);
        tap(screen, 2, 0);
        EXPECT_THAT(program.links.opened, ElementsAre(review)) << other;
    }
    program.links.opened.clear();
    for (const char* unreadable : {"", "one", "1.0", " 1", "99999999999999999999"}) {
        settings().setText(settingKeys::rateUs, unreadable);
        tap(screen, 2, 0);
    }
    settings().setText(settingKeys::rateUs, "0");
    program.links.opens = false;
    tap(screen, 2, 0);
    EXPECT_THAT(program.links.opened, IsEmpty());
    EXPECT_EQ(program.stack().top(), &screen);
}

TEST_F(SettingsTest, RatingMayAskFirst) {
    auto& screen = open();
    settings().setText(settingKeys::rateUs, "1");
    tap(screen, 2, 0);
    auto& question = program.top<ui::AlertController>();
    EXPECT_EQ(question.title(), "Enjoying Tessivo?");
    EXPECT_EQ(question.message(), "");
    ASSERT_EQ(question.actions().size(), 2U);
    EXPECT_EQ(question.actions()[0].title, "No");
    EXPECT_EQ(question.actions()[0].style, ui::AlertActionStyle::Destructive);
    EXPECT_THAT(program.links.opened, IsEmpty());
    question.choose(1);
    EXPECT_THAT(program.links.opened, ElementsAre("https://flathub.org/apps/org.tessivo.Tessivo"));
    tap(screen, 2, 0);
    program.top<ui::AlertController>().choose(0);
    EXPECT_EQ(program.mail.messages.size(), 1U);

    program.links.opened.clear();
    program.network.answer = 0;
    tap(screen, 2, 0);
    EXPECT_EQ(program.links.opened.size(), 1U) << "without a network the question does not come";
}

TEST_F(SettingsTest, ASupportMailNamesDeviceSystemAndVersion) {
    auto& screen = open();
    program.mail.canSend = false;
    tap(screen, 3, 0);
    EXPECT_TRUE(program.mail.messages.empty());
    EXPECT_EQ(program.stack().top(), &screen);
    program.mail.canSend = true;
    tap(screen, 3, 0);
    ASSERT_EQ(program.mail.messages.size(), 1U);
    EXPECT_EQ(program.mail.messages[0].subject, "Tessivo — User Question ");
    EXPECT_EQ(
        program.mail.messages[0].htmlBody,
        "<p></p><p>----------------</p><p> Device: PinePhone</p><p>iOS: Debian GNU/Linux 12 (bookworm)</p>"
        "<p>App version: 0.1.0 (1)</p>");
}

TEST_F(SettingsTest, SharingHandsOverATextWithTheStorePage) {
    auto& screen = open();
    tap(screen, 2, 1);
    auto& sheet = program.top<ActivityViewController>();
    EXPECT_TRUE(sheet.preview.isHidden());
    EXPECT_TRUE(sheet.saveButton.isHidden());
    sheet.messageButton.tap();
    ASSERT_EQ(program.textSharing.shared.size(), 1U);
    EXPECT_EQ(program.textSharing.shared[0].act, "message");
    EXPECT_EQ(program.textSharing.shared[0].text, "I count the days that matter with Tessivo. Try it too: "
                                                  "https://flathub.org/apps/org.tessivo.Tessivo");
    EXPECT_EQ(program.stack().top(), &screen);
    program.textSharing.hasMessenger = false;
    tap(screen, 2, 1);
    EXPECT_TRUE(program.top<ActivityViewController>().messageButton.isHidden());
}

TEST(Applications, ADamagedListOffersNothing) {
    NlohmannJson json;
    const fakes::FolderResources resources(resourcesFolder());
    struct : LocalizedTexts {
        std::string localizedString(std::string_view key) const override {
            return "[" + std::string(key) + "]";
        }
    } texts;
    const std::string row = R"({"title": "T", "subTitle": "S", "image": "I", "id": "org.T"})";
    const auto read = readApplications("[" + row + "]", json, texts);
    ASSERT_EQ(read.size(), 1U);
    EXPECT_EQ(read[0].title, "[T]");
    EXPECT_EQ(read[0].subTitle, "[S]");
    EXPECT_EQ(read[0].id, "org.T");
    for (const std::string& damaged :
         {std::string(), row, "[" + row + ",", "[" + row + R"(, {"title": "T"}])", std::string(R"([1])")})
        EXPECT_THAT(readApplications(damaged, json, texts), IsEmpty()) << damaged;
}

} // namespace
} // namespace tessivo
