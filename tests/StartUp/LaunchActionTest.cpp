#include "Support/StartUp/LaunchAction.h"

#include "AddEventVC/EventTitleViewController.h"
#include "Event/CoreDataStack.h"
#include "Event/EventItem.h"
#include "Extension/TabBar/CustomTabBarController.h"
#include "MainVC/MainViewController.h"
#include "support/Events.h"
#include "support/Program.h"

#include <gtest/gtest.h>

namespace tessivo {
namespace {

class LaunchActionTest : public testing::Test {
protected:
    LaunchActionTest() {
        for (int number = 0; number < 40; ++number)
            ids.push_back(
                add("0" + std::to_string(1 + number % 9) + " January " + (number < 20 ? "2020" : "2040")));
        program.restart();
    }

    Uuid add(const std::string& date) {
        EventItem item = plainEvent(date, date, Uuid{{1, static_cast<std::uint8_t>(ids.size())}});
        item.eventType = date.ends_with("2040");
        program.services().coreDataStack().addEvent(item);
        return *item.id;
    }

    void perform(std::string_view name, const std::string& parameter = "") {
        performLaunchAction(name, parameter, program.services(), program.stack());
    }

    CustomTabBarController& tabs() { return program.top<CustomTabBarController>(); }
    MainViewController& list() { return dynamic_cast<MainViewController&>(*tabs().selectedViewController()); }

    Program program;
    std::vector<Uuid> ids;
};

TEST_F(LaunchActionTest, ShowsTheListThatHoldsTheEventScrolledToItsCard) {
    for (const auto number : {35U, 15U}) {
        perform("show-event", ids[number].uuidString());
        EXPECT_EQ(tabs().selectedIndex(), number < 20 ? 0U : 1U);
        EXPECT_NE(list().collection.cellForItem(static_cast<int>(number % 20)), nullptr)
            << "its card is shown";
        EXPECT_EQ(list().collection.cellForItem(0), nullptr);
    }
}

TEST_F(LaunchActionTest, AnUnknownEventOrActionChangesNothing) {
    const auto before = tabs().selectedIndex();
    perform("show-event", "nonsense");
    perform("show-event", Uuid{{9}}.uuidString());
    perform("another", ids[35].uuidString());
    EXPECT_EQ(tabs().selectedIndex(), before);
    EXPECT_EQ(list().collection.contentOffset().y, 0);
}

TEST_F(LaunchActionTest, WhatIsBeingWrittenStays) {
    perform("new-event");
    program.settle();
    auto& wizard = program.top<EventTitleViewController>();
    perform("show-event", ids[35].uuidString());
    perform("new-event");
    EXPECT_EQ(program.stack().top(), &wizard);
}

} // namespace
} // namespace tessivo
