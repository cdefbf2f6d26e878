#include "Reminders/ReminderEngine.h"

#include "FakeDesktop.h"
#include "fakes/FakeNotificationQueue.h"
#include "fakes/FakeWallAlarm.h"
#include "fakes/OffsetCalendar.h"
#include "fakes/RecordingConsole.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <iostream>
#include <map>
#include <memory>
#include <random>
#include <set>

namespace tessivo {
namespace {

constexpr Seconds day{24 * 3600};

/// Counts over all machines.
struct Totals {
    int requests = 0;
    int shown = 0;
    int killsInTheWindow = 0; ///< requests on the screen, and not in the ledger, as their process was killed
    int shownTwice = 0;
};

/// A badly treated machine, with an observer who works out from the disk and the clock alone what should be
/// on the screen.
class BadlyTreatedMachine {
public:
    BadlyTreatedMachine(unsigned seed, Totals& totals) : random_(seed), totals_(totals) {
        desktop_.onShow = [this](int call) { cameToTheScreen(call); };
        start();
    }

    void live(int requests) {
        while (static_cast<int>(versions_.size()) < requests) {
            act(drawn());
            line_.advance(Seconds(0.001 * between(0, 100)));
        }
    }

    void settle() {
        if (!process_)
            start();
        comeUp();
        auto last = line_.now();
        for (const auto& queued : *disk_.pending)
            last = std::max(last, momentOf(queued.request));
        line_.advance(last - line_.now() + day);
    }

    void judge() {
        EXPECT_TRUE(disk_.pending->empty());
        for (const auto& [title, version] : versions_) {
            if (!version.withdrawn) {
                EXPECT_GE(version.shown, 1) << title << " was lost";
            }
            EXPECT_LE(version.shown, 1 + version.killsInTheWindow) << title << " came too often";
            ++totals_.requests;
            totals_.shown += version.shown > 0 ? 1 : 0;
            totals_.shownTwice += std::max(version.shown - 1, 0);
            totals_.killsInTheWindow += version.killsInTheWindow;
        }
    }

private:
    struct Process {
        explicit Process(BadlyTreatedMachine& machine)
            : queue(machine.disk_),
              display(machine.line_, machine.desktop_),
              alarm(machine.line_),
              engine({queue, display, alarm, machine.app_, machine.line_, machine.calendar_,
                      machine.console_}) {}

        fakes::FakeNotificationQueue queue;
        FakeDisplay display;
        fakes::FakeWallAlarm alarm;
        ReminderEngine engine;
        std::map<int, std::set<std::string>> calls; ///< what each notice stands for
        std::set<std::string> onScreen;
    };

    /// One request under one identifier; its title is its name.
    struct Version {
        std::string identifier;
        Instant added;
        bool withdrawn = false; ///< removed or replaced while it was pending
        int shown = 0;
        int killsInTheWindow = 0;
    };

    enum class Act {
        Kill,
        Start,
        Reboot,
        Suspend,
        SetClock,
        Travel,
        LoseDesktop,
        RegainDesktop,
        Upgrade,
        Withdraw,
        Wait,
        KillNearAMoment,
        Add
    };

    /// How often each act comes, in the order of the acts.
    Act drawn() {
        std::discrete_distribution<int> weights({1, 2, 1, 1, 1, 1, 1, 2, 1, 1, 2, 2, 4});
        return static_cast<Act>(weights(random_));
    }

    void act(Act act) {
        switch (act) {
        case Act::Kill:
            return kill();
        case Act::Start:
            return start();
        case Act::Reboot:
            return reboot();
        case Act::Suspend:
            return jump(Seconds(between(1, 500'000))); // the alarm reports it like a set clock
        case Act::SetClock:
            return jump(Seconds(between(-200'000, 200'000)));
        case Act::Travel:
            return travel();
        case Act::LoseDesktop:
            desktop_.isUp = false;
            return;
        case Act::RegainDesktop:
            return comeUp();
        case Act::Upgrade:
            return upgrade();
        case Act::Withdraw:
            return withdraw();
        case Act::Wait:
            return line_.advance(Seconds(between(1, 100'000)));
        case Act::KillNearAMoment:
            return killNearAMoment();
        case Act::Add:
            return add();
        }
    }

    void start() {
        if (process_)
            return;
        healthySince_ = line_.now();
        process_ = std::make_unique<Process>(*this);
        process_->display.onCall = [this](int call, const Notice& notice) { called(call, notice); };
        process_->display.onFailure = [this](int call) { process_->calls.erase(call); };
        process_->engine.processDue();
    }

    void kill() {
        if (!process_)
            return;
        for (const auto& title : process_->onScreen) {
            if (isPending(title))
                ++versions_.at(title).killsInTheWindow;
        }
        process_.reset();
    }

    void killNearAMoment() {
        start();
        std::optional<Instant> next;
        for (const auto& queued : *disk_.pending) {
            const auto moment = momentOf(queued.request);
            if (moment > line_.now())
                next = std::min(next.value_or(moment), moment);
        }
        if (next)
            line_.advance(*next - line_.now() + Seconds(0.001 * between(0, 25)));
        kill();
    }

    void reboot() {
        kill();
        line_.setWall(line_.now() + Seconds(between(1, 200'000)));
        desktop_.isUp = true;
        start();
    }

    void jump(Seconds distance) {
        line_.setWall(line_.now() + distance);
        healthySince_ = line_.now();
        if (process_)
            process_->alarm.clockWasSet();
    }

    void travel() {
        calendar_.setOffset(Seconds(900.0 * between(-48, 56)));
        healthySince_ = line_.now();
        if (process_)
            process_->engine.processDue();
    }

    void comeUp() {
        if (desktop_.isUp)
            return;
        healthySince_ = line_.now();
        desktop_.isUp = true;
        if (process_)
            process_->display.comeUp();
    }

    void upgrade() {
        start();
        bool handedOver = false;
        process_->engine.finish([&] { handedOver = true; });
        line_.advance(Seconds(1));
        EXPECT_TRUE(handedOver);
        kill();
        start();
    }

    /// Adds a request; one in three replaces another that may be pending, or on the screen, or gone.
    void add() {
        const auto number = std::to_string(versions_.size());
        const auto identifier =
            "event-" + (between(0, 2) == 0 ? std::to_string(between(0, 50)) : "new-" + number);
        withdraw(identifier);
        const auto title = "request-" + number;
        const auto spread = between(0, 3);
        const auto ahead = spread == 0   ? between(-300'000, 0)
                           : spread == 1 ? between(0, 20)
                                         : between(0, 300'000);
        const auto fields = calendar_.components(line_.now() + Seconds(ahead));
        versions_[title] = {identifier, line_.now(), false, 0, 0};
        fakes::FakeNotificationQueue queue(disk_);
        ASSERT_EQ(queue.add({identifier, {title, "", true}, {fields, false}}), std::nullopt);
        if (process_)
            process_->engine.processDue();
    }

    void withdraw() {
        if (disk_.pending->empty())
            return;
        const auto index = static_cast<std::size_t>(between(0, static_cast<int>(disk_.pending->size()) - 1));
        const auto identifier = (*disk_.pending)[index].request.identifier;
        withdraw(identifier);
        ASSERT_EQ(fakes::FakeNotificationQueue(disk_).remove({identifier}), std::nullopt);
    }

    void withdraw(const std::string& identifier) {
        for (const auto& queued : *disk_.pending) {
            if (queued.request.identifier == identifier)
                versions_.at(queued.request.content.title).withdrawn = true;
        }
    }

    /// The engine hands a notice to the desktop: is it the right one, at the right time?
    void called(int call, const Notice& notice) {
        std::set<std::string> due;
        std::set<std::string> old;
        for (const auto& queued : *disk_.pending) {
            const auto& title = queued.request.content.title;
            const auto moment = momentOf(queued.request);
            if (moment > line_.now() || isUnderWay(title))
                continue;
            due.insert(title);
            if (line_.now() - moment > day)
                old.insert(title);
            const auto eligible = std::max({moment, healthySince_, versions_.at(title).added});
            if (desktop_.isUp) {
                EXPECT_LE(line_.now() - eligible, Seconds(1)) << title << " came late";
            }
        }
        process_->calls[call] = requestsOf(notice, due, old);
    }

    static std::set<std::string> requestsOf(const Notice& notice, const std::set<std::string>& due,
                                            const std::set<std::string>& old) {
        if (notice.title == "Tessivo (" + std::to_string(due.size()) + ")" && due.size() > 5)
            return due;
        if (notice.title == "Tessivo (" + std::to_string(old.size()) + ")" && due.size() <= 5)
            return old;
        EXPECT_TRUE(due.contains(notice.title)) << notice.title << " came early";
        EXPECT_LE(due.size(), 5U) << notice.title << " came alone";
        EXPECT_TRUE(!old.contains(notice.title) || old.size() == 1) << notice.title << " came alone";
        return {notice.title};
    }

    void cameToTheScreen(int call) {
        for (const auto& title : process_->calls.at(call)) {
            ++versions_.at(title).shown;
            process_->onScreen.insert(title);
        }
    }

    [[nodiscard]] bool isUnderWay(const std::string& title) const {
        return std::ranges::any_of(process_->calls,
                                   [&](const auto& call) { return call.second.contains(title); });
    }

    [[nodiscard]] bool isPending(const std::string& title) const {
        return std::ranges::any_of(*disk_.pending, [&](const QueuedRequest& queued) {
            return queued.request.content.title == title;
        });
    }

    [[nodiscard]] Instant momentOf(const NotificationRequest& request) const {
        return calendar_.date(request.trigger.dateComponents);
    }

    int between(int least, int most) { return std::uniform_int_distribution<int>(least, most)(random_); }

    std::mt19937 random_;
    Totals& totals_;
    fakes::Timeline line_{instantAt(1'800'000'000)};
    fakes::OffsetCalendar calendar_;
    fakes::QueueDisk disk_;
    fakes::RecordingConsole console_;
    FakeDesktop desktop_;
    FakeAppActivation app_;
    std::map<std::string, Version> versions_;
    Instant healthySince_; ///< when the last disturbance ended
    std::unique_ptr<Process> process_;
};

// However a machine is killed, rebooted, suspended, upgraded or moved between time zones, and however its
// clock is set: no request is lost, each is shown within a second of the first possible moment, and none is
// shown twice unless its process was killed after the desktop took the notice and before the ledger was
// written.
TEST(ReminderEnduranceTest, NothingIsLostAndNothingComesTwice) {
    Totals totals;
    for (unsigned seed = 0; seed < 250 && !testing::Test::HasFailure(); ++seed) {
        SCOPED_TRACE(seed);
        BadlyTreatedMachine machine(seed, totals);
        machine.live(50);
        machine.settle();
        machine.judge();
    }
    std::cout << totals.requests << " requests, " << totals.shown << " shown, " << totals.killsInTheWindow
              << " kills in the window, " << totals.shownTwice << " shown twice\n";
    EXPECT_GT(totals.requests, 10'000);
    EXPECT_GT(totals.killsInTheWindow, 100);
    EXPECT_LE(totals.shownTwice, totals.killsInTheWindow);
}

} // namespace
} // namespace tessivo
