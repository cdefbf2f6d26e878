#include "Interface/View.h"

#include "Interface/ControlRegistry.h"
#include "Interface/Gestures.h"

#include <gmock/gmock.h>

namespace tessivo::ui {
namespace {

using testing::ElementsAre;

class ViewTest : public testing::Test {
protected:
    ViewTest() {
        root.setFrame({0, 0, 300, 300});
        under.setFrame({50, 50, 100, 100});
        over.setFrame({100, 100, 100, 100});
        root.addSubview(under);
        root.addSubview(over);
    }

    View root;
    View under;
    View over;
};

TEST_F(ViewTest, TheTopmostViewThatTakesTouchesIsHit) {
    EXPECT_EQ(root.hitTest({60, 60}), &under);
    EXPECT_EQ(root.hitTest({120, 120}), &over);
    EXPECT_EQ(root.hitTest({250, 250}), &root);
    EXPECT_EQ(root.hitTest({300, 10}), nullptr) << "the far edge is outside";
    over.setHidden(true);
    EXPECT_EQ(root.hitTest({120, 120}), &under);
    over.setHidden(false);
    over.setAlpha(0.005);
    EXPECT_EQ(root.hitTest({120, 120}), &under);
    over.setAlpha(1);
    over.setUserInteractionEnabled(false);
    EXPECT_EQ(root.hitTest({120, 120}), &under);
}

TEST_F(ViewTest, ScrolledContentIsHitWhereItIsSeen) {
    View inner;
    inner.setFrame({0, 200, 100, 20});
    under.addSubview(inner);
    EXPECT_EQ(root.hitTest({60, 60}), &under);
    under.setBoundsOrigin({0, 195});
    EXPECT_EQ(root.hitTest({60, 60}), &inner);
    EXPECT_EQ(root.convertTo(inner, Point{60, 60}), (Point{10, 5}));
    EXPECT_EQ(inner.convertTo(root, Rect{0, 0, 100, 20}), (Rect{50, 55, 100, 20}));
}

TEST_F(ViewTest, AViewStandsInOnePlaceAtATime) {
    under.addSubview(over);
    EXPECT_THAT(root.subviews(), ElementsAre(&under));
    EXPECT_TRUE(over.isDescendantOf(root));
    root.insertSubview(over, 0);
    EXPECT_THAT(root.subviews(), ElementsAre(&over, &under));
    root.addSubview(over);
    EXPECT_THAT(root.subviews(), ElementsAre(&under, &over));
    over.removeFromSuperview();
    EXPECT_EQ(over.superview(), nullptr);
}

TEST_F(ViewTest, WhatGoesLeavesNoTrace) {
    {
        View passing;
        root.addSubview(passing);
        View child;
        passing.addSubview(child);
    }
    EXPECT_THAT(root.subviews(), ElementsAre(&under, &over));
}

TEST_F(ViewTest, ChangesAreToldByTheirKind) {
    std::vector<ViewChange> told;
    const auto subscription = root.onChange([&](ViewChange change) { told.push_back(change); });
    root.setHidden(true);
    root.setHidden(true);
    root.setCenterX(7);
    root.setCenterX(7);
    std::vector<ViewChange> toldOfOver;
    const auto ofOver = over.onChange([&](ViewChange change) { toldOfOver.push_back(change); });
    over.removeFromSuperview();
    EXPECT_THAT(told, ElementsAre(ViewChange::Appearance, ViewChange::Geometry, ViewChange::Hierarchy));
    EXPECT_THAT(toldOfOver, ElementsAre(ViewChange::Hierarchy));
}

TEST_F(ViewTest, ALayerTellsItsChangesWhileItIsShown) {
    const auto layer = std::make_shared<GradientLayer>();
    int told = 0;
    const auto subscription = root.onChange([&](ViewChange) { ++told; });
    root.insertSublayer(layer, 0);
    told = 0;
    layer->setHidden(true);
    layer->setHidden(true);
    layer->setFrame({0, 0, 10, 10});
    EXPECT_EQ(told, 2);
    root.removeSublayer(0);
    told = 0;
    layer->setHidden(false);
    EXPECT_EQ(told, 0);
    View{}.insertSublayer(layer, 0);
    layer->setHidden(true); // its view has gone
}

class Refusing final : public GestureRecognizerDelegate {
public:
    bool gestureRecognizerShouldBegin(GestureRecognizer&) override { return answer; }
    bool answer = false;
};

class PanTest : public testing::Test {
protected:
    PanTest() {
        view.addGestureRecognizer(pan);
        pan->addTarget(this, [this](GestureRecognizer& recognizer) { states.push_back(recognizer.state()); });
    }

    View view;
    std::shared_ptr<PanGestureRecognizer> pan = std::make_shared<PanGestureRecognizer>();
    std::vector<GestureState> states;
};

TEST_F(PanTest, TargetsHearItsWay) {
    EXPECT_TRUE(pan->begin({10, 10}, {8, 0}, {100, 0}));
    pan->change({30, 10}, {28, 0}, {200, 0});
    EXPECT_EQ(pan->translation(), (Point{28, 0}));
    EXPECT_EQ(pan->locationIn(view), (Point{30, 10}));
    pan->end({50, 0});
    EXPECT_EQ(pan->velocity(), (Point{50, 0}));
    EXPECT_THAT(states, ElementsAre(GestureState::Began, GestureState::Changed, GestureState::Ended));
}

TEST_F(PanTest, ASetTranslationIsCountedOnFrom) {
    pan->begin({}, {8, 0}, {});
    pan->setTranslation({-100, 0});
    pan->change({}, {20, 3}, {});
    EXPECT_EQ(pan->translation(), (Point{-88, 3}));
}

TEST_F(PanTest, ARefusedPanHearsNothingMore) {
    const auto refusing = std::make_shared<Refusing>();
    pan->delegate = refusing;
    EXPECT_FALSE(pan->begin({}, {8, 0}, {}));
    states.clear();
    pan->change({}, {20, 0}, {});
    pan->end({});
    EXPECT_TRUE(states.empty());
    refusing->answer = true;
    EXPECT_TRUE(pan->begin({}, {8, 0}, {}));
}

TEST_F(PanTest, TurningItOffCancelsIt) {
    pan->begin({}, {8, 0}, {});
    pan->setEnabled(false);
    pan->change({}, {20, 0}, {});
    EXPECT_THAT(states, ElementsAre(GestureState::Began, GestureState::Cancelled));
    EXPECT_FALSE(pan->begin({}, {8, 0}, {}));
}

TEST(ControlRegistryTest, ASecondControlOfOneNameIsRefused) {
    ControlRegistry controls;
    const View first(controls, "card");
    EXPECT_THROW(View(controls, "card"), std::logic_error);
    EXPECT_EQ(controls.find("card"), &first);
}

TEST_F(PanTest, ARemovedTargetHearsNothing) {
    pan->removeTarget(this);
    pan->begin({}, {8, 0}, {});
    EXPECT_TRUE(states.empty());
}

} // namespace
} // namespace tessivo::ui
