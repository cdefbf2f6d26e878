#include "AddEventVC/EventBackgroundViewController.h"
#include "AddEventVC/EventDateAndTimeViewController.h"
#include "AddEventVC/ReminderViewController.h"
#include "EditEventVC/EditEventDateAndTimeViewController.h"
#include "EditEventVC/EditEventTitleViewController.h"
#include "EditEventVC/EditReminderViewController.h"
#include "Event/CoreDataStack.h"
#include "Event/EventDate.h"
#include "Event/EventItem.h"
#include "Reminders/QueuedNotificationCenter.h"
#include "SelectValueVC/TableViewController.h"
#include "Support/ScreenFactory.h"
#include "fakes/RecordingConsole.h"
#include "fakes/Timeline.h"
#include "freedesktop/BusNames.h"
#include "freedesktop/DataFolder.h"
#include "freedesktop/EventLoop.h"
#include "freedesktop/ReminderService.h"
#include "freedesktop/SessionBus.h"
#include "icu/IcuCalendar.h"
#include "processes/PrivateSession.h"
#include "sqlite/SqliteNotificationQueue.h"
#include "standard/SystemClock.h"
#include "standard/ThreadWorkQueue.h"
#include "support/Events.h"
#include "support/Wizard.h"

#include <gmock/gmock.h>

#include <filesystem>
#include <fstream>
#include <future>
#include <memory>

namespace tessivo::freedesktop {
namespace {

/// The built helper and the program's side of the queue, on a session of their own. Here real time passes.
class RemindersEndToEndTest : public testing::Test {
protected:
    void SetUp() override {
        if (!PrivateSession::isPossible())
            GTEST_SKIP() << "This machine has no dbus-daemon, Xvfb or dunst";
        session = std::make_unique<PrivateSession>();
        queue = std::make_unique<sqlite::SqliteNotificationQueue>(reminderQueueFile(), console);
        start(clock);
    }

    /// Starts the program's side anew, with its clock at `now`.
    void start(const Clock& now) {
        center = std::make_unique<QueuedNotificationCenter>(
            QueuedNotificationCenter::Machine{*queue, calendar, calendar, line, now},
            std::make_unique<ThreadWorkQueue>(), [](const auto& answer) { answer(true); },
            tellReminderHelper);
    }

    void startHelper() {
        helper = Process({TESSIVO_HELPER});
        ASSERT_TRUE(eventually([] { return PrivateSession::isOnBus(remindersName); }));
    }

    Outcome add(const std::string& title, const std::string& body, double fromNow) {
        std::promise<Outcome> added;
        const auto fields = calendar.components(clock.now() + Seconds(fromNow));
        center->add({title, {title, body, true}, {fields, false}},
                    [&](const Outcome& error) { added.set_value(error); });
        return added.get_future().get();
    }

    [[nodiscard]] bool arrives(const std::string& title, const std::string& body) const {
        return eventually([&] { return session->hasShown(title, body); });
    }

    std::unique_ptr<PrivateSession> session;
    fakes::RecordingConsole console;
    fakes::Timeline line;
    SystemClock clock;
    IcuCalendar calendar;
    std::unique_ptr<sqlite::SqliteNotificationQueue> queue;
    std::unique_ptr<QueuedNotificationCenter> center;
    Process helper;
};

TEST_F(RemindersEndToEndTest, AReminderArrivesThoughTheHelperWasKilledMeanwhile) {
    session->startDaemon();
    startHelper();
    ASSERT_EQ(add("Tea & cake", "at <b>Anna's</b>", 3), std::nullopt);
    helper.kill();
    startHelper();
    EXPECT_TRUE(arrives("Tea & cake", "at &lt;b&gt;Anna's&lt;/b&gt;"));
    EXPECT_TRUE(eventually([&] { return queue->pending().value()->empty(); }));
}

TEST_F(RemindersEndToEndTest, AReminderWaitsForADaemonAndForTheNextOne) {
    startHelper();
    ASSERT_EQ(add("Early", "bird", 3), std::nullopt);
    session->startDaemon();
    EXPECT_TRUE(arrives("Early", "bird"));
    session->killDaemon();
    ASSERT_EQ(add("Late", "owl", 3), std::nullopt);
    session->startDaemon();
    EXPECT_TRUE(arrives("Late", "owl"));
}

TEST_F(RemindersEndToEndTest, TheBusStartsTheHelperWhenTheQueueChanges) {
    session->addService(remindersName, TESSIVO_HELPER);
    session->startDaemon();
    ASSERT_EQ(add("Start", "me", 3), std::nullopt);
    EXPECT_TRUE(arrives("Start", "me"));
}

/// Records what the program is asked to do.
int activated(sd_bus_message* call, void* data, sd_bus_error*) {
    const char* action = nullptr;
    const char* event = nullptr;
    if (sd_bus_message_read(call, "sav", &action, 1, "s", &event) >= 0)
        *static_cast<std::string*>(data) = std::string(action) + " " + event;
    return sd_bus_reply_method_return(call, nullptr);
}

/// Stands in for the program: takes its place on the bus and records what it is asked to do.
class StandInProgram {
public:
    StandInProgram() {
        static const sd_bus_vtable program[] = {
            SD_BUS_VTABLE_START(0),
            SD_BUS_METHOD("ActivateAction", "sava{sv}", "", activated, SD_BUS_VTABLE_UNPRIVILEGED),
            SD_BUS_VTABLE_END};
        EXPECT_GE(sd_bus_add_object_vtable(bus_.value().handle(), nullptr, applicationPath,
                                           "org.freedesktop.Application", program, &asked_),
                  0);
        EXPECT_GE(sd_bus_request_name(bus_.value().handle(), applicationId, 0), 0);
    }

    [[nodiscard]] bool isAskedFor(const std::string& what) {
        return eventually([&] {
            sd_event_run(loop_.value().handle(), 0);
            return asked_ == what;
        });
    }

private:
    Result<EventLoop> loop_ = EventLoop::make();
    Result<SessionBus> bus_ = SessionBus::open(loop_.value());
    std::string asked_;
};

TEST_F(RemindersEndToEndTest, AClickOpensTheProgram) {
    StandInProgram program;
    session->startDaemon();
    startHelper();
    ASSERT_EQ(add("Click", "me", 3), std::nullopt);
    ASSERT_TRUE(eventually([&] { return queue->pending().value()->empty(); }));
    (void)outputOf({"dunstctl", "action", "0"});
    EXPECT_TRUE(program.isAskedFor("show-event Click"));
}

TEST_F(RemindersEndToEndTest, WhereNothingIsInstalledAClickStartsTheProgramByItsPath) {
    const auto programs = session->folder() / "programs";
    std::filesystem::create_directory(programs);
    const auto copy = programs / "tessivo-reminders";
    std::filesystem::copy(TESSIVO_HELPER, copy);
    const auto started = session->folder() / "started";
    std::ofstream(programs / "tessivo") << "#!/bin/sh\ntouch '" << started.string() << "'\n";
    std::filesystem::permissions(programs / "tessivo", std::filesystem::perms::owner_all);
    session->startDaemon();
    helper = Process({copy});
    ASSERT_TRUE(eventually([] { return PrivateSession::isOnBus(remindersName); }));
    ASSERT_EQ(add("Click", "me", 3), std::nullopt);
    ASSERT_TRUE(eventually([&] { return queue->pending().value()->empty(); }));
    (void)outputOf({"dunstctl", "action", "0"});
    EXPECT_TRUE(eventually([&] { return std::filesystem::exists(started); }));
    EXPECT_TRUE(StandInProgram().isAskedFor("show-event Click"));
}

// The helper sees an /etc of its own, whose time zone the test can change.
TEST_F(RemindersEndToEndTest, ANewTimeZoneOfTheDeviceIsHeardOf) {
    if (outputOf({"unshare", "--mount", "echo", "possible"}).empty())
        GTEST_SKIP() << "This machine gives processes no file tree of their own";
    const auto etc = session->folder() / "etc";
    std::filesystem::create_directory(etc);
    std::filesystem::create_symlink("/usr/share/zoneinfo/UTC", etc / "localtime");
    session->startDaemon();
    helper = Process(
        {"unshare", "--mount", "sh", "-c", "mount --bind \"$0\" /etc && exec \"$1\"", etc, TESSIVO_HELPER});
    ASSERT_TRUE(eventually([] { return PrivateSession::isOnBus(remindersName); }));
    const IcuCalendar inUtc("en_US", "UTC");
    const auto inTwoHours = inUtc.components(clock.now() + Seconds(7200));
    sqlite::SqliteNotificationQueue other(reminderQueueFile(), console);
    ASSERT_EQ(other.add({"a", {"Landed", "in Tokyo", true}, {inTwoHours, false}}), std::nullopt);
    tellReminderHelper();
    EXPECT_FALSE(session->hasShown("Landed", "in Tokyo"));
    std::filesystem::create_symlink("/usr/share/zoneinfo/Asia/Tokyo", etc / "new");
    std::filesystem::rename(etc / "new", etc / "localtime");
    EXPECT_TRUE(arrives("Landed", "in Tokyo"));
}

TEST_F(RemindersEndToEndTest, ASecondHelperLeavesTheFirstAlone) {
    startHelper();
    Process second({TESSIVO_HELPER});
    std::optional<int> code;
    EXPECT_TRUE(eventually([&] { return (code = second.exitCode()).has_value(); }));
    EXPECT_EQ(code, 0);
    EXPECT_EQ(helper.exitCode(), std::nullopt);
}

TEST_F(RemindersEndToEndTest, AnOlderHelperHandsOverToANewerOne) {
    startHelper();
    auto loop = EventLoop::make();
    ASSERT_TRUE(loop);
    auto bus = SessionBus::open(loop.value());
    ASSERT_TRUE(bus) << bus.error().description;
    bool begun = false;
    ReminderService newer(bus.value(), "99.0", {[&] { begun = true; }, [] {}, [] {}});
    const auto claimed = newer.claim();
    ASSERT_TRUE(claimed) << claimed.error().description;
    EXPECT_TRUE(claimed.value());
    EXPECT_TRUE(eventually([&] {
        sd_event_run(loop.value().handle(), 0);
        return begun;
    }));
    std::optional<int> code;
    EXPECT_TRUE(eventually([&] { return (code = helper.exitCode()).has_value(); }));
    EXPECT_EQ(code, 0);
}

TEST_F(RemindersEndToEndTest, AHelperWhoseProgramIsReplacedGoesOnAsTheNewOne) {
    const auto program = session->folder() / "tessivo-reminders";
    std::filesystem::copy(TESSIVO_HELPER, program);
    helper = Process({program});
    ASSERT_TRUE(eventually([] { return PrivateSession::isOnBus(remindersName); }));
    std::filesystem::copy(TESSIVO_HELPER, program.string() + ".new");
    std::filesystem::rename(program.string() + ".new", program);
    const auto running = "/proc/" + std::to_string(helper.id()) + "/exe";
    EXPECT_TRUE(eventually([&] {
        std::error_code ignored;
        return std::filesystem::equivalent(running, program, ignored);
    }));
    EXPECT_TRUE(eventually([] { return PrivateSession::isOnBus(remindersName); }));
    helper.terminate();
    std::optional<int> code;
    EXPECT_TRUE(eventually([&] { return (code = helper.exitCode()).has_value(); }));
    EXPECT_EQ(code, 0);
}

// As the package does it after an upgrade, whose old file is gone by then.
TEST_F(RemindersEndToEndTest, AHelperThatIsHungUpBeginsAnewInItsProcessAndStillReminds) {
    session->startDaemon();
    startHelper();
    const auto before = PrivateSession::ownerOf(remindersName);
    ASSERT_EQ(add("Upgraded", "meanwhile", 3), std::nullopt);
    helper.hangUp();
    ASSERT_TRUE(eventually([&] {
        const auto now = PrivateSession::ownerOf(remindersName);
        return !now.empty() && now != before;
    }));
    EXPECT_EQ(helper.exitCode(), std::nullopt);
    EXPECT_TRUE(arrives("Upgraded", "meanwhile"));
}

// The whole way: through the wizard's screens into the store and the queue, and from there to the desktop.
TEST_F(RemindersEndToEndTest, AnEventOfTheWizardReminds) {
    session->startDaemon();
    startHelper();
    {
        // The program runs two days behind: what lies ahead of it has come due when the helper looks.
        line.setWall(clock.now() - Seconds(2 * 86400));
        start(line);
        Program program(*center);
        program.timeline.setWall(line.now());
        openWizard(program).textField.editTo("Wedding <3");
        auto& date = next<EventDateAndTimeViewController>(program);
        date.datePicker.pick(program.timeline.now() + Seconds(3 * 86400));
        auto& reminder = next<ReminderViewController>(program);
        const auto answersCome = [&] {
            program.timeline.runPosted();
            line.runPosted(); // the user's answer
            return reminder.reminderMess.isHidden() == false;
        };
        reminder.toggleSwitch.toggle();
        ASSERT_TRUE(eventually(answersCome));
        reminder.alertButton.tap();
        program.top<TableViewController>().tableView.tapItem(7); // a day before: today
        program.top<TableViewController>().dismiss();
        program.settle();
        reminder.reminderMess.beginEditing();
        reminder.reminderMess.editTo("Rings & flowers");
        next<EventBackgroundViewController>(program);
        program.top<WizardScreen>().nextButton.tap();
        line.runPosted();
        EXPECT_TRUE(arrives("Wedding <3", "Rings &amp; flowers"));
        center->finish();
        EXPECT_TRUE(program.console.printed("уведомление создано"));
    }
}

// Edits reach the desktop: another title arrives, a date moved ahead does not arrive at the old time, and
// what was turned off while it was pending arrives once more.
TEST_F(RemindersEndToEndTest, EditsOfAnEventMoveItsReminder) {
    session->startDaemon();
    startHelper();
    Program program(*center);
    program.timeline.setWall(clock.now());
    const auto store = [&](const char* title) {
        EventItem item = plainEvent(
            title, program.dateFormatters.make(dateFormat)->string(clock.now() + Seconds(9 * 86400)),
            program.services().platform().uuids.random());
        item.alertReminder = item.repReminder = 0;
        program.services().coreDataStack().addEvent(item);
        std::promise<Outcome> added;
        const auto soon = calendar.components(clock.now() + Seconds(4));
        center->add({item.id->uuidString(), {title, "soon", true}, {soon, false}},
                    [&](const Outcome& error) { added.set_value(error); });
        EXPECT_EQ(added.get_future().get(), std::nullopt);
        return *item.id;
    };
    const auto open = [&](EditScreen kind, const Uuid& id) -> WizardScreen& {
        program.stack().top()->present(program.services().screens().makeEdit(
                                           kind, program.services().makeCoreDataStack()->fetchEvent(id)),
                                       false);
        return program.top<WizardScreen>();
    };
    const auto save = [&](WizardScreen& screen) {
        screen.nextButton.tap();
        program.settle();
    };
    auto& title = static_cast<EditEventTitleViewController&>(open(EditScreen::Title, store("old")));
    title.textField.editTo("new");
    save(title);
    const Uuid movedId = store("moved");
    auto& date = static_cast<EditEventDateAndTimeViewController&>(open(EditScreen::DateAndTime, movedId));
    const Instant day = program.timeline.now() + Seconds(20 * 86400);
    date.datePicker.pick(day);
    save(date);
    auto& reminder = static_cast<EditReminderViewController&>(open(EditScreen::Reminder, store("off")));
    reminder.toggleSwitch.setOn(false);
    save(reminder);

    EXPECT_TRUE(arrives("new", "soon"));
    EXPECT_TRUE(arrives("off", "soon"));
    EXPECT_FALSE(session->hasShown("old", "soon"));
    EXPECT_FALSE(session->hasShown("moved", "soon"));
    center->finish();
    const auto pending = *queue->pending().value();
    ASSERT_EQ(pending.size(), 1U);
    EXPECT_EQ(pending.front().request.identifier, movedId.uuidString());
    EXPECT_EQ(pending.front().request.trigger.dateComponents.day, calendar.components(day).day);
}

TEST(RemindersWithoutBusTest, TheHelperEndsAndTheProgramGoesOn) {
    ::setenv("DBUS_SESSION_BUS_ADDRESS", "unix:path=/nowhere", 1);
    tellReminderHelper();
    Process helper({TESSIVO_HELPER});
    std::optional<int> code;
    EXPECT_TRUE(eventually([&] { return (code = helper.exitCode()).has_value(); }));
    EXPECT_EQ(code, 1);
}

} // namespace
} // namespace tessivo::freedesktop
