#include "Event/ReminderScheduler.h"

#include "Event/EventCoreData.h"
#include "Event/EventItem.h"
#include "Event/ReminderRules.h"
#include "fakes/FakeNotificationCenter.h"
#include "fakes/RecordingConsole.h"
#include "fakes/Timeline.h"
#include "icu/IcuCalendar.h"
#include "icu/IcuDateFormatters.h"

#include <gmock/gmock.h>

#include <functional>

namespace tessivo {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr double dayInSeconds = 86400;
const Uuid identity = *Uuid::fromString("9a0b1c2d-3e4f-5061-7283-94a5b6c7d8e9");
const std::string identifier = "9A0B1C2D-3E4F-5061-7283-94A5B6C7D8E9";
const auto now = instantAt(1'800'000'000); // 15 January 2027, 8:00 AM in UTC

struct AlertCase {
    const char* name;
    std::int16_t alertReminder;
    DateComponents expected;
};

class ReminderAlertRuleTest : public testing::TestWithParam<AlertCase> {};

TEST_P(ReminderAlertRuleTest, LeadsByTheTable) {
    const IcuCalendar calendar("en_US", "Europe/Berlin");
    fakes::RecordingConsole console;
    const auto eventDate =
        calendar.date({2027, 3, 28, 4, 30, 59}); // ninety minutes after the clocks went ahead
    EXPECT_EQ(alertComponents(eventDate, GetParam().alertReminder, calendar, console), GetParam().expected);
    const bool isKnown = GetParam().alertReminder >= 0 && GetParam().alertReminder <= 9;
    EXPECT_EQ(console.lines(), isKnown ? std::vector<std::string>{} : std::vector<std::string>{"nul"});
}

INSTANTIATE_TEST_SUITE_P(Cases, ReminderAlertRuleTest,
                         testing::Values(AlertCase{"AtTime", 0, {2027, 3, 28, 4, 30, {}}},
                                         AlertCase{"FiveMinutes", 1, {2027, 3, 28, 4, 25, {}}},
                                         AlertCase{"TenMinutes", 2, {2027, 3, 28, 4, 20, {}}},
                                         AlertCase{"AQuarter", 3, {2027, 3, 28, 4, 15, {}}},
                                         AlertCase{"HalfAnHour", 4, {2027, 3, 28, 4, 0, {}}},
                                         AlertCase{"OneHour", 5, {2027, 3, 28, 3, 30, {}}},
                                         AlertCase{"TwoHoursOverTheGap", 6, {2027, 3, 28, 1, 30, {}}},
                                         AlertCase{"OneDayKeepsTheTime", 7, {2027, 3, 27, 4, 30, {}}},
                                         AlertCase{"TwoDays", 8, {2027, 3, 26, 4, 30, {}}},
                                         AlertCase{"AWeek", 9, {2027, 3, 21, 4, 30, {}}},
                                         AlertCase{"BeyondTheTable", 10, {2027, 3, 28, 4, 30, {}}},
                                         AlertCase{"BelowTheTable", -1, {2027, 3, 28, 4, 30, {}}}),
                         [](const auto& test) { return test.param.name; });

struct RepeatCase {
    const char* name;
    std::int16_t repReminder;
    double age;     ///< of the event, in seconds
    double fromNow; ///< until it reminds
};

class ReminderRepeatRuleTest : public testing::TestWithParam<RepeatCase> {};

TEST_P(ReminderRepeatRuleTest, RemindsAtTheNextWholeMultiple) {
    const IcuCalendar calendar("en_US", "UTC");
    fakes::RecordingConsole console;
    const auto fields =
        repeatComponents(now - Seconds(GetParam().age), GetParam().repReminder, now, calendar, console);
    EXPECT_EQ(fields, calendar.components(now + Seconds(GetParam().fromNow)));
}

INSTANTIATE_TEST_SUITE_P(
    Cases, ReminderRepeatRuleTest,
    testing::Values(RepeatCase{"Daily", 0, 2.25 * dayInSeconds, 0.75 * dayInSeconds},
                    RepeatCase{"AtAMultipleTheOneAfter", 0, 3 * dayInSeconds, dayInSeconds},
                    RepeatCase{"AtTheEventItself", 0, 0, dayInSeconds},
                    RepeatCase{"Weekly", 1, 8.75 * dayInSeconds, 5.25 * dayInSeconds},
                    RepeatCase{"Fortnightly", 2, 21 * dayInSeconds, 7 * dayInSeconds},
                    RepeatCase{"AMonthIsThirtyDays", 3, 37.5 * dayInSeconds, 22.5 * dayInSeconds},
                    RepeatCase{"AYearIs365Days", 4, 547.5 * dayInSeconds, 182.5 * dayInSeconds},
                    // A third of a day is no whole number of periods; fractions of a second are cut off.
                    RepeatCase{"ASecondEarlyWhereThePeriodsAreNotExact", 0, 3 * dayInSeconds + 28800, 57599},
                    // As happens when the shared date is that of another row.
                    RepeatCase{"OfADateAheadPastItsOwnMoment", 0, -0.25 * dayInSeconds, 1.25 * dayInSeconds}),
    [](const auto& test) { return test.param.name; });

TEST(ReminderRepeatRule, AnIntervalBeyondTheTableStopsTheProgram) {
    const IcuCalendar calendar("en_US", "UTC");
    for (const std::int16_t repReminder : {std::int16_t{5}, std::int16_t{-1}}) {
        fakes::RecordingConsole console;
        EXPECT_THROW((void)repeatComponents(now - Seconds(60), repReminder, now, calendar, console),
                     fakes::ProgramStopped);
        EXPECT_THAT(console.lines(), ElementsAre("nul"));
    }
}

EventItem itemOf(const EventRecord& record) {
    EventItem item;
    item.title = record.title;
    item.dateEvent = record.dateEvent;
    item.timeEvent = record.timeEvent;
    item.alertReminder = record.alertReminder;
    item.repReminder = record.repReminder;
    item.remMess = record.remMess;
    item.eventType = record.eventType;
    item.id = record.id;
    return item;
}

/// A scheduler and a notification center that answers when the test says.
class ReminderSchedulerTest : public testing::Test {
protected:
    static EventRecord futureRecord() {
        EventRecord record;
        record.title = "Concert";
        record.dateEvent = "20 March 2027";
        record.timeEvent = "7:30 PM";
        record.alertReminder = 5;
        record.repReminder = 0;
        record.remMess = "Take the tickets";
        record.eventType = true;
        record.id = identity;
        return record;
    }

    static EventRecord pastRecord() {
        auto record = futureRecord();
        record.dateEvent = "12 January 2027";
        record.timeEvent = "2:00 AM";
        record.eventType = false;
        return record;
    }

    static NotificationRequest pendingRequest(const std::string& of = identifier) {
        return {of, {"Old title", "Old words", true}, {{2027, 2, 1, 9, 0, {}}, true}};
    }

    void addPending(const std::string& of = identifier) {
        center.add(pendingRequest(of), [](const Outcome&) {});
        center.run();
    }

    void refresh(const EventRecord& event) {
        const auto full = formatters.make("dd MMMM yyyy h:mm a");
        const auto date = formatters.make("dd MMMM yyyy");
        const auto past = std::make_shared<PastReminders>();
        scheduler.refreshPastReminder(event, *full, *date, *past);
        scheduler.finishPass(past, now);
    }

    fakes::Timeline line{now};
    IcuCalendar calendar{"en_US", "UTC"};
    IcuDateFormatters formatters{"en_US", "UTC"};
    fakes::FakeNotificationCenter center{AuthorizationStatus::Authorized};
    fakes::RecordingConsole console;
    ReminderScheduler scheduler{center, calendar, formatters, line, console};

    const NotificationContent content{"Concert", "Take the tickets", true};
    const DateComponents futureComponents{2027, 3, 20, 18, 30, {}};
    const DateComponents pastComponents{2027, 1, 16, 2, 0, 0};
    const std::string notFound = "Уведомление с идентификатором " + identifier + " не найдено";
};

/// A place in the program that makes a notification, and how it differs from the others.
struct SiteCase {
    const char* name;
    std::function<void(ReminderScheduler&, const EventRecord&)> act;
    bool onePending = false; ///< the site needs or may meet a pending request
    bool futureRepeats = true;
    bool makesPast = true;
    bool successFollowsFailure = false;
    int times = 1; ///< how often it makes the request
    std::vector<std::string> lines = {"уведомление создано"};
};

std::vector<SiteCase> allSites() {
    const auto edit = [](ReminderScheduler& scheduler, const EventRecord& record) {
        scheduler.editReminder(EventCoreData(record));
    };
    return {
        {.name = "WizardFinish",
         .act = [](auto& scheduler, const auto& record) { scheduler.finishWizard(itemOf(record)); },
         .futureRepeats = false,
         .lines = {"СОЗДАНИЕ УВЕДОМЛЕНИЯ ПРОШЛО УСПЕШНО", "уведомление создано"}},
        {.name = "RolledEvent",
         .act = [](auto& scheduler, const auto& record) { scheduler.renewRolledReminder(record); },
         .onePending = true,
         .futureRepeats = false,
         .makesPast = false,
         .successFollowsFailure = true},
        {.name = "EditDateAndTime",
         .act = [](auto& scheduler, const auto& record) { scheduler.editDateAndTime(EventCoreData(record)); },
         .onePending = true,
         .times = 2,
         .lines = {"уведомление создано", "уведомление создано"}},
        {.name = "EditReminder", .act = edit},
        {.name = "EditReminderWithOnePending", .act = edit, .onePending = true}};
}

/// The other sites only see future events.
std::vector<SiteCase> sitesOfPastEvents() {
    auto sites = allSites();
    std::erase_if(sites, [](const SiteCase& site) { return !site.makesPast; });
    return sites;
}

class ReminderSiteTest : public ReminderSchedulerTest, public testing::WithParamInterface<SiteCase> {
protected:
    void act(const EventRecord& record) {
        if (GetParam().onePending)
            addPending();
        GetParam().act(scheduler, record);
        center.run();
    }
};

TEST_P(ReminderSiteTest, MakesTheFutureRequest) {
    act(futureRecord());
    EXPECT_THAT(center.pending(), ElementsAre(NotificationRequest{
                                      identifier, content, {futureComponents, GetParam().futureRepeats}}));
    EXPECT_EQ(console.lines(), GetParam().lines);
}

using PastReminderSiteTest = ReminderSiteTest;

TEST_P(PastReminderSiteTest, MakesThePastRequest) {
    act(pastRecord());
    EXPECT_THAT(center.pending(),
                ElementsAre(NotificationRequest{identifier, content, {pastComponents, false}}));
    EXPECT_EQ(console.lines(), GetParam().lines);
}

TEST_P(ReminderSiteTest, TellsOfAFailure) {
    if (GetParam().onePending)
        addPending();
    center.failAdds(Error{"NotificationCenter", 1, "disk full"});
    GetParam().act(scheduler, futureRecord());
    center.run();
    std::vector<std::string> expected(static_cast<std::size_t>(GetParam().times),
                                      "Ошибка при добавлении уведомления: disk full");
    if (GetParam().successFollowsFailure)
        expected.insert(expected.end(), GetParam().lines.begin(), GetParam().lines.end());
    EXPECT_EQ(console.lines(), expected);
}

TEST_P(ReminderSiteTest, AnEventWithoutIdentityHasNoReminder) {
    auto record = futureRecord();
    record.id = std::nullopt;
    GetParam().act(scheduler, record);
    center.run();
    EXPECT_THAT(center.pending(), IsEmpty());
    EXPECT_THAT(console.lines(), IsEmpty());
}

TEST_P(ReminderSiteTest, AbsentTextsAreEmptyAndADateWithoutTimeIsItsMidnight) {
    auto record = futureRecord();
    record.title = std::nullopt;
    record.remMess = std::nullopt;
    record.timeEvent = "";
    record.alertReminder = 9;
    act(record);
    ASSERT_EQ(center.pending().size(), 1U);
    EXPECT_EQ(center.pending()[0].content, (NotificationContent{"", "", true}));
    EXPECT_EQ(center.pending()[0].trigger.dateComponents, (DateComponents{2027, 3, 13, 0, 0, {}}));
}

std::string siteName(const testing::TestParamInfo<SiteCase>& site) {
    return site.param.name;
}

INSTANTIATE_TEST_SUITE_P(Sites, ReminderSiteTest, testing::ValuesIn(allSites()), siteName);
INSTANTIATE_TEST_SUITE_P(Sites, PastReminderSiteTest, testing::ValuesIn(sitesOfPastEvents()), siteName);

TEST_F(ReminderSchedulerTest, TheWizardAsksOnceMoreAndMakesNothingUnlessGranted) {
    for (const bool granted : {true, false}) {
        center.setStatus(AuthorizationStatus::NotDetermined);
        center.willAnswer(granted);
        scheduler.finishWizard(itemOf(futureRecord()));
        center.run();
        EXPECT_EQ(center.pending().size(), granted ? 1U : 0U);
        EXPECT_EQ(console.take().size(), granted ? 2U : 0U);
        center.fire(identifier);
    }
    EXPECT_EQ(center.askedOptions(), 7);
}

TEST_F(ReminderSchedulerTest, TheWizardAsksNothingWhereTheReminderIsOff) {
    center.setStatus(AuthorizationStatus::NotDetermined);
    auto item = itemOf(futureRecord());
    item.alertReminder = NO_VALUE;
    scheduler.finishWizard(item);
    center.run();
    EXPECT_EQ(center.timesAsked(), 0);
}

TEST_F(ReminderSchedulerTest, AMomentGoneByIsHandedOnAsItIs) {
    auto record = futureRecord();
    record.dateEvent = "17 January 2027";
    record.alertReminder = 9;
    scheduler.finishWizard(itemOf(record));
    center.run();
    ASSERT_EQ(center.pending().size(), 1U);
    EXPECT_EQ(center.pending()[0].trigger.dateComponents, (DateComponents{2027, 1, 10, 19, 30, {}}));
}

TEST_F(ReminderSchedulerTest, ARolledEventWithoutAlertKeepsTheQueueAsItIs) {
    addPending();
    auto record = futureRecord();
    record.alertReminder = NO_VALUE;
    scheduler.renewRolledReminder(record);
    center.run();
    EXPECT_THAT(center.pending(), ElementsAre(pendingRequest()));
}

TEST_F(ReminderSchedulerTest, EditedDateAndTimeMakeNothingWhereNothingWasPending) {
    addPending("another");
    scheduler.editDateAndTime(EventCoreData(futureRecord()));
    center.run();
    EXPECT_THAT(center.pending(), ElementsAre(pendingRequest("another")));
    EXPECT_THAT(console.lines(), IsEmpty());
}

TEST_F(ReminderSchedulerTest, EditedDateAndTimeAreLookedUpOnceWithoutAnAlert) {
    addPending();
    auto record = futureRecord();
    record.alertReminder = NO_VALUE;
    scheduler.editDateAndTime(EventCoreData(record));
    center.run();
    ASSERT_EQ(center.pending().size(), 1U);
    EXPECT_EQ(center.pending()[0].trigger.dateComponents, (DateComponents{2027, 3, 20, 19, 30, {}}));
    EXPECT_THAT(console.lines(), ElementsAre("nul", "уведомление создано"));
}

TEST_F(ReminderSchedulerTest, APastEventWithItsReminderOffLosesWhatIsPending) {
    addPending();
    auto record = pastRecord();
    record.alertReminder = NO_VALUE;
    record.repReminder = NO_VALUE;
    scheduler.editDateAndTime(EventCoreData(record));
    center.run();
    EXPECT_THAT(center.pending(), IsEmpty());
    EXPECT_THAT(console.lines(), IsEmpty());
}

TEST_F(ReminderSchedulerTest, AnEditedTitleKeepsWordsSoundAndTrigger) {
    addPending();
    scheduler.editTitle(EventCoreData(futureRecord()));
    center.run();
    auto expected = pendingRequest();
    expected.content.title = "Concert";
    EXPECT_THAT(center.pending(), ElementsAre(expected));
    EXPECT_THAT(console.take(), ElementsAre("Уведомление с идентификатором " + identifier + " обновлено"));

    center.failAdds(Error{"NotificationCenter", 1, "disk full"});
    scheduler.editTitle(EventCoreData(futureRecord()));
    center.run();
    EXPECT_THAT(console.lines(), ElementsAre("Ошибка при обновлении уведомления: disk full"));
}

TEST_F(ReminderSchedulerTest, ADeletedEventTakesItsNotificationAlong) {
    addPending();
    addPending("another");
    scheduler.removeReminder(identity);
    center.run();
    EXPECT_THAT(center.pending(), ElementsAre(pendingRequest("another")));
    EXPECT_THAT(console.lines(), ElementsAre("Уведомление с идентификатором " + identifier + " удалено"));
}

TEST_F(ReminderSchedulerTest, EditedTitleAndDeleteSayWhenNothingIsPending) {
    scheduler.editTitle(EventCoreData(futureRecord()));
    scheduler.removeReminder(identity);
    scheduler.removeReminder(std::nullopt);
    center.run();
    EXPECT_THAT(console.lines(), ElementsAre(notFound, notFound));
}

TEST_F(ReminderSchedulerTest, ThePassMakesAPastReminderAnewOnlyWhenNoneIsPending) {
    const auto event = pastRecord();
    refresh(event);
    center.run();
    EXPECT_THAT(center.pending(),
                ElementsAre(NotificationRequest{identifier, content, {pastComponents, false}}));
    EXPECT_THAT(console.take(), ElementsAre("уведомление ПЕРЕсоздаНО"));
    refresh(event);
    center.run();
    EXPECT_THAT(console.lines(), IsEmpty());

    center.fire(identifier);
    center.failAdds(Error{"NotificationCenter", 1, "disk full"});
    refresh(event);
    center.run();
    EXPECT_THAT(console.lines(),
                ElementsAre("Ошибка при добавлении уведомления: disk full", "уведомление ПЕРЕсоздаНО"));
}

TEST_F(ReminderSchedulerTest, APastReminderIsReckonedFromThePassHoweverLateTheAnswer) {
    refresh(pastRecord());
    line.advance(Seconds(86400));
    center.run();
    ASSERT_EQ(center.pending().size(), 1U);
    EXPECT_EQ(center.pending()[0].trigger.dateComponents, pastComponents);
}

TEST_F(ReminderSchedulerTest, APastReminderThatIsOffOrWithoutIdentityIsLeftAlone) {
    auto off = pastRecord();
    off.repReminder = NO_VALUE;
    off.dateEvent = "unreadable";
    refresh(off);
    auto nameless = pastRecord();
    nameless.id = std::nullopt;
    refresh(nameless);
    EXPECT_EQ(center.waiting(), 0U);
}

TEST_F(ReminderSchedulerTest, ADateThatDoesNotReadStopsTheProgramWhereItIsNeeded) {
    auto past = pastRecord();
    past.dateEvent = "12 janvier 2027";
    EXPECT_THROW(refresh(past), fakes::ProgramStopped);
    past.dateEvent = std::nullopt;
    EXPECT_THROW(refresh(past), fakes::ProgramStopped);

    scheduler.editDateAndTime(EventCoreData(past));
    center.run(); // nothing pending: the date is not needed
    addPending();
    scheduler.editReminder(EventCoreData(past));
    EXPECT_THROW(center.run(), fakes::ProgramStopped);
}

} // namespace
} // namespace tessivo
