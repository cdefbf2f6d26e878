#include "app/stop/StopWindow.h"

#include "Event/CoreDataStack.h"
#include "fakes/RecordingConsole.h"
#include "sqlite/Database.h"
#include "sqlite/EventColumns.h"
#include "sqlite/SqliteEventStore.h"
#include "support/Events.h"
#include "support/TemporaryFolder.h"
#include "json/JsonLocalizedTexts.h"

#include <gmock/gmock.h>

#include <QVariant>

namespace tessivo {
namespace {

/// The window over a store with one event whose date was written in German.
class StopWindowTest : public testing::Test {
protected:
    StopWindowTest() {
        sqlite::SqliteEventStore store(file(), [] { return "de_DE"; });
        CoreDataStack stack(store, console);
        stack.addEvent(plainEvent("", "05 März 2031"));
    }

    std::filesystem::path file() const { return folder / "events.sqlite"; }

    StopWindow::Setting settingIn(const std::string& locale) {
        return {folder.path(),
                locale,
                "en",
                [this](const auto& chosen) { done.push_back("start " + chosen.value_or("here")); },
                [this](const QString& shown) { done.push_back("show " + shown.toStdString()); },
                [this] { done.push_back("close"); }};
    }

    /// Carries out each act, in the order of the window.
    std::vector<std::string> actsIn(const std::string& locale) {
        StopWindow window(settingIn(locale), "The date cannot be parsed.", texts);
        const auto names = window.property("acts").toStringList();
        for (int index = 0; index <= names.size(); ++index)
            window.act(index);
        return std::exchange(done, {});
    }

    TemporaryFolder folder;
    fakes::RecordingConsole console;
    JsonLocalizedTexts texts;
    std::vector<std::string> done;
};

TEST_F(StopWindowTest, OffersTheLanguageOfTheDatesThenToRewriteThem) {
    const std::string show = "show " + folder.path().string();
    EXPECT_THAT(actsIn("fr_FR"), testing::ElementsAre("start de_DE", "start here", show, "close"));
    EXPECT_THAT(actsIn("fr_FR"), testing::ElementsAre(show, "close")) << "the dates are French by now";
}

TEST_F(StopWindowTest, ARewritingThatFailsIsToldAndStartsNothing) {
    StopWindow window(settingIn("fr_FR"), "", texts);
    auto database = sqlite::Database::open(file(), sqlite::eventSchema);
    ASSERT_EQ(database.value().execute("UPDATE events SET dateEvent = 'soon'"), std::nullopt);
    window.act(1);
    EXPECT_EQ(window.property("advice").toString(), "stop.rewritingFailed");
    EXPECT_THAT(done, testing::IsEmpty());
}

} // namespace
} // namespace tessivo
