#include "SwipeCells/SwipeList.h"
#include "SwipeCells/SwipeTable.h"

#include <gtest/gtest.h>
#include <rapidcheck.h>

#include <array>
#include <ostream>

namespace tessivo::swipe {
namespace {

enum class Act { Touch, Move, LetGo, Lose, Pull, Wait, Hide, Show, Scroll, Reload };

struct Step {
    Act act;
    int item;
    int way;
    int velocity;
};

std::ostream& operator<<(std::ostream& out, const Step& step) {
    constexpr std::array names{"touch", "move", "letGo", "lose",   "pull",
                               "wait",  "hide", "show",  "scroll", "reload"};
    return out << names[static_cast<std::size_t>(step.act)] << " " << step.item << " way " << step.way
               << " velocity " << step.velocity;
}

rc::Gen<Step> anyStep() {
    // Moving the finger is the common case.
    return rc::gen::build<Step>(rc::gen::set(&Step::act, rc::gen::weightedElement<Act>({{4, Act::Touch},
                                                                                        {8, Act::Move},
                                                                                        {4, Act::LetGo},
                                                                                        {1, Act::Lose},
                                                                                        {2, Act::Pull},
                                                                                        {3, Act::Wait},
                                                                                        {1, Act::Hide},
                                                                                        {1, Act::Show},
                                                                                        {1, Act::Scroll},
                                                                                        {1, Act::Reload}})),
                                rc::gen::set(&Step::item, rc::gen::inRange(0, 5)),
                                rc::gen::set(&Step::way, rc::gen::inRange(-340, 341)),
                                rc::gen::set(&Step::velocity, rc::gen::inRange(-900, 901)));
}

SwipeOptions anyOptions() {
    SwipeOptions options;
    options.transitionStyle = *rc::gen::element(SwipeTransitionStyle::Border, SwipeTransitionStyle::Drag,
                                                SwipeTransitionStyle::Reveal);
    switch (*rc::gen::inRange(0, 5)) {
    case 1:
        options.expansionStyle = SwipeExpansionStyle::bounceAtHalf();
        break;
    case 2:
        options.expansionStyle = SwipeExpansionStyle::plainFill();
        break;
    case 3: // the owner lets a filled row return at once
        options.expansionStyle = SwipeExpansionStyle(
            SwipeExpansionStyle::EdgeInset{30}, {SwipeExpansionStyle::TouchThreshold{0.8}}, false,
            SwipeExpansionStyle::FillOptions{ExpansionFulfillmentStyle::Reset,
                                             HandlerInvocationTiming::After});
        break;
    case 4: // a filled row goes
        options.expansionStyle = SwipeExpansionStyle::deleteAtFill(
            true, *rc::gen::element(HandlerInvocationTiming::With, HandlerInvocationTiming::After));
        break;
    default:
        break;
    }
    return options;
}

template <class Owner>
void perform(Owner& owner, const Step& step) {
    if (step.item >= owner.count())
        return;
    switch (step.act) {
    case Act::Touch:
        if (owner.pan(step.item).state() != ui::GestureState::Possible)
            return; // the cell has its finger already
        // A finger on the list closes what stands open beside it.
        (void)owner.list().hitTest({160, step.item * 100.0 + 50});
        owner.begin(step.item, step.velocity);
        return;
    case Act::Move:
        owner.change(step.item, step.way, step.velocity);
        return;
    case Act::LetGo:
        owner.pan(step.item).end({static_cast<double>(step.velocity), 0});
        return;
    case Act::Lose:
        owner.pan(step.item).cancel();
        return;
    case Act::Pull: // by the only finger, all the way across
        for (int item = 0; item < owner.count(); ++item)
            owner.pan(item).end({0, 0});
        if (step.item >= owner.count())
            return;
        perform(owner, {Act::Touch, step.item, 0, step.velocity});
        for (const int way : {295, 300})
            perform(owner, {Act::Move, step.item, step.velocity > 0 ? way : -way, step.velocity});
        perform(owner, {Act::LetGo, step.item, 0, step.velocity});
        return;
    case Act::Wait:
        owner.line.advance(Seconds(std::abs(step.way) / 200.0));
        return;
    case Act::Hide:
        owner.cell(step.item).hideSwipe(step.way < 0);
        return;
    case Act::Show: { // a random side, animated or not
        for (int item = 0; item < owner.count(); ++item) {
            if (owner.cell(item).state() == SwipeState::Dragging)
                return; // nothing closes a row that a finger holds
        }
        const auto side = step.velocity > 0 ? SwipeActionsOrientation::Left : SwipeActionsOrientation::Right;
        owner.cell(step.item).showSwipe(side, step.way < 0);
        return;
    }
    case Act::Scroll:
        owner.list().panGestureRecognizer()->begin({0, 0}, {0, 9}, {0, 90});
        owner.list().panGestureRecognizer()->end({0, 0});
        return;
    case Act::Reload:
        owner.reload();
    }
}

template <class Owner>
void expectSound(Owner& owner) {
    int open = 0;
    for (int item = 0; item < owner.count(); ++item) {
        const auto& cell = owner.cell(item);
        open += isOpen(cell.state()) ? 1 : 0;
        const bool hasRow = cell.actionsView() != nullptr;
        RC_ASSERT((!isOffCenter(cell.state()) || hasRow));
    }
    RC_ASSERT(open <= 1);
}

/// Each cell at rest in its place, or open by its buttons, or filled for an owner who has not answered.
template <class Owner>
void expectSettled(Owner& owner) {
    RC_ASSERT(!owner.line.framesAreAskedFor());
    for (int item = 0; item < owner.count(); ++item) {
        const auto& cell = owner.cell(item);
        const double moved = owner.container(item).center().x - 160;
        if (cell.state() == SwipeState::Center) {
            RC_ASSERT(moved == 0);
            continue;
        }
        RC_ASSERT(isOpen(cell.state()));
        const auto& row = *cell.actionsView();
        const double distance = -offsetSign(row.orientation()) * moved;
        const bool waits = row.expansionCarrier() && distance == 320 + row.minimumButtonWidth();
        RC_ASSERT((waits || distance == row.naturalRowWidth()));
    }
}

template <class Owner>
void checkTrace() {
    const auto owner = Owner::make();
    if (*rc::gen::arbitrary<bool>())
        owner->left = SwipeActions{owner->action("Pin")};
    if (*rc::gen::arbitrary<bool>())
        owner->right = SwipeActions{owner->action("Delete"), owner->action("Edit")};
    owner->options = anyOptions();
    for (const Step& step : *rc::gen::container<std::vector<Step>>(anyStep())) {
        perform(*owner, step);
        expectSound(*owner);
    }
    for (int item = 0; item < owner->count(); ++item)
        owner->pan(item).end({0, 0});
    owner->line.advance(Seconds(20));
    expectSound(*owner);
    expectSettled(*owner);
}

/// Some faults show in one trace out of several hundred, so each case is made of many.
template <class Owner>
void checkAnyTrace() {
    EXPECT_TRUE(rc::check([] {
        for (int trace = 0; trace < 20; ++trace)
            checkTrace<Owner>();
    }));
}

TEST(SwipeProperties, NoTraceLeavesACellOfACollectionAstray) {
    checkAnyTrace<SwipeList>();
}

TEST(SwipeProperties, NoTraceLeavesACellOfATableAstray) {
    checkAnyTrace<SwipeTable>();
}

} // namespace
} // namespace tessivo::swipe
