#include "Event/CoreDataStack.h"
#include "Event/EventItem.h"
#include "Interface/AlertController.h"
#include "MainVC/EventCell.h"
#include "MainVC/MainViewController.h"
#include "Ports/SavedSettings.h"
#include "Support/SettingKeys.h"
#include "Support/StartUp/Screens.h"
#include "support/Events.h"
#include "support/Program.h"

#include <gtest/gtest.h>

#include <array>

namespace tessivo {
namespace {

class NextScreen final : public ui::ViewController {
public:
    using ViewController::ViewController;
    [[nodiscard]] std::string screenName() const override { return "NextScreen"; }
};

/// Notes which screens the list asks for, and with which event.
class NotingScreens final : public Screens {
public:
    explicit NotingScreens(ui::WindowContext& window) : window_(window) {}

    std::shared_ptr<ui::ViewController> makeFullEvent(std::shared_ptr<EventCoreData> record) override {
        return note("full", std::move(record));
    }
    std::shared_ptr<ui::ViewController> makeEdit(EditScreen kind,
                                                 std::shared_ptr<EventCoreData> eventData) override {
        constexpr std::array names{"title", "date and time", "reminder", "background"};
        return note(names[static_cast<std::size_t>(kind)], std::move(eventData));
    }
    std::shared_ptr<ui::ViewController>
    makeSettings(std::weak_ptr<SettingControllerDelegate> delegate) override {
        delegateSettting = std::move(delegate);
        return note("settings", nullptr);
    }

    std::string asked;
    std::shared_ptr<EventCoreData> event;
    std::weak_ptr<SettingControllerDelegate> delegateSettting;

private:
    std::shared_ptr<ui::ViewController> note(std::string what, std::shared_ptr<EventCoreData> record) {
        asked = std::move(what);
        event = std::move(record);
        return std::make_shared<NextScreen>(window_);
    }

    ui::WindowContext& window_;
};

class ListScreensTest : public testing::Test {
protected:
    ListScreensTest() {
        store("event", {});
        program.stack().top()->present(list, false);
        list->collection.reloadData();
    }

    ~ListScreensTest() override { list->dismiss(false); } // it draws on services that go before the program

    void store(const std::string& title, std::optional<std::string> time,
               const std::string& day = "25 June 2030") {
        EventItem item = plainEvent(title, day, program.services().platform().uuids.random());
        item.timeEvent = std::move(time);
        services.coreDataStack().addEvent(item);
    }

    EventCell& card() { return dynamic_cast<EventCell&>(*list->collection.cellForItem(0)); }

    Program program;
    NotingScreens screens{program.services().window()};
    SharedServices services{program.services().platform(), program.services().window(), screens};
    std::shared_ptr<MainViewController> list =
        std::make_shared<MainViewController>(services, ListType::Future);
};

TEST_F(ListScreensTest, EveryWayToAScreenTakesACopyOfTheEventThatNothingElseSees) {
    const auto sheet = [this](std::size_t choice) {
        list->showEditSheet(0);
        program.top<ui::AlertController>().choose(choice);
    };
    const auto menu = [this](std::size_t choice) {
        list->contextMenuForItem(list->collection, 0, {})->elements[0].children[choice].handler();
    };
    const struct {
        std::function<void()> act;
        const char* screen;
    } rows[] = {{[&] { list->collection.tapItem(0); }, "full"},
                {[&] { sheet(0); }, "title"},
                {[&] { sheet(1); }, "date and time"},
                {[&] { sheet(2); }, "reminder"},
                {[&] { sheet(3); }, "background"},
                {[&] { menu(0); }, "title"},
                {[&] { menu(1); }, "date and time"},
                {[&] { menu(2); }, "reminder"},
                {[&] { menu(3); }, "background"}};
    for (const auto& [act, screen] : rows) {
        SCOPED_TRACE(screen);
        card().showSwipe(swipe::SwipeActionsOrientation::Right, false);
        act();
        EXPECT_EQ(screens.asked, screen);
        EXPECT_EQ(isOpen(card().state()), screens.asked == "full") << "editing closes the row";
        ASSERT_EQ(program.stack().top()->screenName(), "NextScreen");
        EXPECT_EQ(program.stack().top()->modalPresentationStyle, ui::PresentationStyle::Custom);
        EXPECT_EQ(program.stack().top()->transitioningDelegate.lock().get(), list.get());
        ASSERT_TRUE(screens.event);
        screens.event->setTitle("abandoned");
        services.coreDataStack().updateBackground(*screens.event->id(), 3, NO_VALUE, {}, {});
        list->collection.reloadData();
        EXPECT_EQ(card().eventInformationLabel.text(), "event\n25 June 2030");
        EXPECT_EQ(services.makeCoreDataStack()->fetchEvents().front()->title(), "event");
        program.settle();
        list->dismiss(false);
        ASSERT_EQ(program.stack().top(), list.get());
    }
}

TEST_F(ListScreensTest, ATickUnderAQuestionMovesNoActToAnotherEvent) {
    const auto sheet = [this](int item) {
        list->showEditSheet(item);
        return [this] { program.top<ui::AlertController>().choose(2); };
    };
    const auto question = [this](int item) {
        list->confirmDeletion(item);
        return [this] { program.top<ui::AlertController>().choose(1); };
    };
    const auto menu = [this](std::size_t element) {
        return [this, element](int item) {
            auto chosen = list->contextMenuForItem(list->collection, item, {})->elements[element];
            return chosen.children.empty() ? chosen.handler : chosen.children[2].handler;
        };
    };
    const auto titles = [this] {
        std::string all;
        for (const auto& row : services.makeCoreDataStack()->fetchEvents())
            all += *row->title() + " ";
        return all;
    };
    const struct {
        const char* what;
        std::function<std::function<void()>(int)> ask;
        std::function<std::string()> done; ///< the event that the answer acted on; empty for none
    } rows[] = {
        {"edit sheet", sheet, [&] { return screens.event ? *screens.event->title() : ""; }},
        {"menu, edit", menu(0), [&] { return screens.event ? *screens.event->title() : ""; }},
        {"menu, share", menu(1),
         [&] {
             const auto& asked = program.snapshots.asked;
             return asked.empty() ? "" : asked.back()->accessibilityName().substr(0, 5);
         }},
        {"menu, delete", menu(2),
         [&] {
             auto* alert = dynamic_cast<ui::AlertController*>(program.stack().top());
             if (alert)
                 alert->choose(1);
             return std::string(titles().find("later") == std::string::npos ? "later" : "");
         }},
        {"delete", question,
         [&] { return std::string(titles().find("later") == std::string::npos ? "later" : ""); }},
    };
    services.coreDataStack().deleteEvent(*(*list->records)[0]->id());
    for (const auto& [what, ask, done] : rows) {
        for (const int item : {0, 1}) { // the event that the tick takes away, and the one behind it
            SCOPED_TRACE(std::string(what) + ", card " + std::to_string(item));
            store("sooner", "10:30 AM", "21 June 2030");
            store("later", {});
            list->collection.reloadData();
            const auto answer = ask(item);
            program.timeline.advance(Seconds(60));
            ASSERT_EQ(list->collection.numberOfItems(), 1) << "the tick has come";
            screens.event = nullptr;
            program.snapshots.asked.clear();
            answer();
            EXPECT_EQ(done(), item == 0 ? "" : "later");
            EXPECT_NE(titles().find("sooner"), std::string::npos) << "nothing else was deleted";
            program.settle();
            if (program.stack().top() != list.get())
                list->dismiss(false);
            for (const auto& row : services.coreDataStack().fetchEvents())
                services.coreDataStack().deleteEvent(*row->id());
        }
    }
}

TEST_F(ListScreensTest, AnotherCardSizeShowsAtOnce) {
    list->settingButton.tap();
    EXPECT_EQ(screens.asked, "settings");
    services.platform().settings.setInteger(settingKeys::eventSize, 2);
    screens.delegateSettting.lock()->reloadEvents();
    EXPECT_NEAR(card().frame().height, 844 / 3.5, 1e-9);
}

} // namespace
} // namespace tessivo
