#pragma once

#include "Interface/Animation.h"
#include "Interface/Button.h"
#include "Interface/Label.h"
#include "Interface/PresentationStack.h"
#include "Interface/SegmentedControl.h"
#include "Interface/Switch.h"
#include "Interface/TextInput.h"
#include "bridge/BridgeContext.h"
#include "bridge/QuickSnapshots.h"
#include "bridge/ScreenItem.h"
#include "fakes/RecordingConsole.h"
#include "fakes/Timeline.h"
#include "hand/Hand.h"
#include "json/JsonNamedColors.h"

#include <gtest/gtest.h>

#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickWindow>

#include <memory>

namespace tessivo {

/// A screen with one of most kinds of control.
class StandInScreen final : public ui::ViewController {
public:
    using ViewController::ViewController;
    [[nodiscard]] std::string screenName() const override { return "StandInScreen"; }

    ui::Label label{controls, "label"};
    ui::Button button{controls, "button"};
    ui::Switch toggle{controls, "toggle"};
    ui::SegmentedControl segments{controls, "segments"};
    ui::TextField field{controls, "field"};
    ui::TextView box{controls, "box"};
};

/// A window with drawings of the program's controls on it, without the program. Its time is virtual: the
/// program's own moves by `timeline`, that of Qt by the hand's acts and `runUntil`.
class ControlWindow : public testing::Test {
protected:
    ControlWindow();
    ~ControlWindow() override;

    /// Draws `body` on the window: the inside of a QML item, as wide as the window, that has `screen`.
    QQuickItem& draw(ui::ViewController& drawn, const QByteArray& body);

    /// Takes the drawing away: before the controls that it draws.
    void undraw();

    fakes::Timeline timeline;
    fakes::RecordingConsole console;
    JsonNamedColors colors = JsonNamedColors::fromJson("{}").value();
    shell::QuickSnapshots snapshots;
    shell::BridgeContext context{colors, console, snapshots};
    ui::MainScreen mainScreen;
    ui::Animations animations{timeline, timeline};
    ui::WindowContext windowContext{mainScreen, animations};
    ui::PresentationStack stack{windowContext};
    std::shared_ptr<StandInScreen> screen = std::make_shared<StandInScreen>(windowContext);
    QQuickWindow window;
    Hand hand{window};

private:
    QQmlEngine engine_;
    std::unique_ptr<shell::ScreenItem> item_;
    std::unique_ptr<QQuickItem> drawing_;
};

} // namespace tessivo
