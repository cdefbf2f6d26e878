#pragma once

#include "AddEventVC/WizardScreen.h"
#include "Event/CoreDataStack.h"
#include "Event/DataChangeDelegate.h"
#include "Event/EventCoreData.h"
#include "Event/EventItem.h"
#include "Ports/Calendar.h"
#include "Support/ScreenFactory.h"
#include "support/Events.h"
#include "support/Program.h"

#include <gmock/gmock.h>

namespace tessivo {

/// Records, in order, each save with what it left in the store, each call on the notification center, each
/// line of the console and each screen that comes.
class Trace final : public NotificationCenter, public DataChangeDelegate {
public:
    explicit Trace(fakes::FakeNotificationCenter& center) : center_(center) {}

    void requestAuthorization(int options, std::function<void(bool, Outcome)> completion) override {
        note("ask");
        center_.requestAuthorization(options, std::move(completion));
    }
    void getNotificationSettings(std::function<void(AuthorizationStatus)> completion) override {
        center_.getNotificationSettings(std::move(completion));
    }
    void getPendingNotificationRequests(std::function<void(const PendingRequests&)> completion) override {
        note("look up");
        center_.getPendingNotificationRequests(std::move(completion));
    }
    void add(NotificationRequest request, std::function<void(Outcome)> completion) override {
        const auto& when = request.trigger.dateComponents;
        note("add " + request.content.title + "/" + request.content.body + " " +
             std::to_string(when.day.value_or(0)) + "." + std::to_string(when.month.value_or(0)) + ". " +
             std::to_string(when.hour.value_or(0)) + ":" + std::to_string(when.minute.value_or(0)) +
             (request.trigger.repeats ? " repeats" : ""));
        center_.add(std::move(request), std::move(completion));
    }
    void removePendingNotificationRequests(std::vector<std::string> identifiers) override {
        note("remove");
        center_.removePendingNotificationRequests(std::move(identifiers));
    }
    void dataDidChange() override { note(saved()); }

    void note(std::string what) {
        if (console)
            for (auto& line : console->take())
                lines.push_back("> " + line);
        lines.push_back(std::move(what));
    }

    std::vector<std::string> lines;
    std::function<std::string()> saved;
    fakes::RecordingConsole* console = nullptr;

private:
    fakes::FakeNotificationCenter& center_;
};

/// One stored event, changed on its screens. Another, whose time has just come, shows when the pass runs.
class EditTest : public testing::Test {
protected:
    EditTest() {
        center.willAnswer(true);
        center.setStatus(AuthorizationStatus::Authorized);
    }

    /// The event that the screens change: in 4 days, at a time, reminding 10 minutes before.
    EventItem summer() {
        EventItem item = plainEvent("Summer", "25 June 2030", id);
        item.timeEvent = "6:30 PM";
        item.timeFormat = 1;
        item.alertReminder = 2;
        item.repReminder = 0;
        item.remMess = "Pack";
        item.color = 4;
        return item;
    }

    void store(const EventItem& item) { program.services().coreDataStack().addEvent(item); }

    /// Queues a notification as the wizard does.
    void remind(const EventItem& item) {
        NotificationRequest request{item.id->uuidString(), {*item.title, *item.remMess, true}, {}};
        request.trigger.dateComponents =
            program.services().platform().calendar.components(program.timeline.now());
        center.add(std::move(request), [](const Outcome&) {});
        center.run();
    }

    /// The row as the list hands it to a screen.
    std::shared_ptr<EventCoreData> row() { return program.services().makeCoreDataStack()->fetchEvent(id); }

    template <class Screen>
    Screen& open(EditScreen kind, std::shared_ptr<EventCoreData> row) {
        program.stack().top()->present(program.services().screens().makeEdit(kind, std::move(row)), false);
        return program.top<Screen>();
    }

    /// Presses Save, lets everything answer, and returns what happened.
    std::vector<std::string> save(WizardScreen& screen) {
        EventItem due = summer();
        due.id = program.services().platform().uuids.random();
        due.dateEvent = "20 June 2030";
        due.alertReminder = due.repReminder = NO_VALUE;
        store(due);
        trace->saved = [this, dueId = *due.id, passed = false]() mutable {
            const bool moved = !program.services().makeCoreDataStack()->fetchEvent(dueId)->eventType();
            return std::exchange(passed, moved) == moved ? "save " + stored() : "pass";
        };
        trace->console = &program.console;
        program.services().coreDataStack().delegate = trace;
        (void)program.console.take();
        trace->lines.clear();
        screen.nextButton.tap();
        trace->note("-- " + program.stack().top()->screenName());
        center.run();
        trace->note("");
        trace->lines.pop_back();
        program.services().coreDataStack().delegate.reset();
        return trace->lines;
    }

    /// The event in the store.
    std::string stored() {
        const auto now = row();
        return *now->title() + ", " + now->dateEvent().value_or("-") + " " + now->timeEvent().value_or("-") +
               ", unit " + std::to_string(now->timeFormat()) + ", repeat " + std::to_string(now->repEvent()) +
               (now->eventType() ? ", future, " : ", past, ") + std::to_string(now->alertReminder()) + " " +
               std::to_string(now->repReminder()) + " " + now->remMess().value_or("-") + ", " +
               std::to_string(now->color()) + " " + std::to_string(now->gradient());
    }

    const Uuid id = *Uuid::fromString("0F0E0D0C-0B0A-0908-0706-050403020100");
    const std::string identifier = id.uuidString();
    fakes::FakeNotificationCenter center;
    std::shared_ptr<Trace> trace = std::make_shared<Trace>(center);
    Program program{*trace}; // on 21 June 2030, 10:30:15
};

} // namespace tessivo
