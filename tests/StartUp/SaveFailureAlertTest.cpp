#include "Support/StartUp/SaveFailureAlert.h"

#include "Event/CoreDataStack.h"
#include "Interface/AlertController.h"
#include "Support/StartUp/PendingScreens.h"
#include "support/Events.h"
#include "support/Program.h"
#include "json/JsonLocalizedTexts.h"

#include <gmock/gmock.h>

namespace tessivo {
namespace {

using testing::AllOf;
using testing::HasSubstr;
using testing::StartsWith;

namespace fs = std::filesystem;

/// A program whose events file can be taken away and put back.
class SaveFailureTest : public testing::Test {
protected:
    void takeAway() { fs::rename(file, away); }
    void putBack() { fs::rename(away, file); }

    Uuid add(const std::string& title) {
        const Uuid id = program.services().platform().uuids.random();
        events().addEvent(plainEvent(title, "21 June 2031", id));
        return id;
    }

    CoreDataStack& events() { return program.services().coreDataStack(); }
    ui::AlertController* alert() { return dynamic_cast<ui::AlertController*>(program.stack().top()); }

    Program program;
    fs::path file = program.folder / "events.sqlite";
    fs::path away = program.folder / "away";
    JsonLocalizedTexts texts =
        JsonLocalizedTexts::fromJson(R"({"notSaved.title": "%1 stays", "notSaved.message": "for: %1"})")
            .value();
    PendingScreens pending{program.stack()};
    SaveFailureAlert failures{events(), pending, program.stack().window(), texts};
};

TEST_F(SaveFailureTest, TryingAgainSavesWhatCouldNotBeSaved) {
    takeAway();
    const Uuid id = add("Birthday");
    ASSERT_NE(alert(), nullptr);
    EXPECT_EQ(alert()->title(), "Birthday stays");
    EXPECT_THAT(alert()->message(), AllOf(StartsWith("for: "), HasSubstr(file.string())));
    putBack();
    alert()->choose(1);
    EXPECT_EQ(alert(), nullptr);
    EXPECT_EQ(program.services().makeCoreDataStack()->fetchEvent(id)->title(), "Birthday");
}

TEST_F(SaveFailureTest, ADeletedEventIsNamedToo) {
    const Uuid id = add("Birthday");
    takeAway();
    events().deleteEvent(id);
    ASSERT_NE(alert(), nullptr);
    EXPECT_EQ(alert()->title(), "Birthday stays");
}

TEST_F(SaveFailureTest, ARepeatedFailureIsToldOnceUntilSomethingIsSaved) {
    const Uuid id = add("Birthday");
    takeAway();
    events().updateDate(id, "22 June 2031");
    ASSERT_NE(alert(), nullptr);
    alert()->choose(0);
    events().updateDate(id, "23 June 2031");
    EXPECT_EQ(alert(), nullptr);
    putBack();
    events().updateDate(id, "24 June 2031");
    takeAway();
    events().updateDate(id, "25 June 2031");
    EXPECT_NE(alert(), nullptr);
}

} // namespace
} // namespace tessivo
