#include "shell/ProgramWindow.h"

#include "Interface/TabBarController.h"
#include "Support/SettingKeys.h"
#include "sqlite/SqliteEventStore.h"
#include "sqlite/SqliteSavedSettings.h"

#include <QGuiApplication>
#include <QQuickItem>
#include <QQuickWindow>

#include <gtest/gtest.h>

#include <stdexcept>

namespace tessivo {

ProgramWindow::ProgramWindow() {
    sqlite::SqliteSavedSettings settings(folder.path() / "settings.sqlite", console);
    settings.setBoolean(settingKeys::isFirstLaunch, true);
    settings.setInteger(settingKeys::defaultScreen, 1); // what lies ahead
    settings.setInteger(settingKeys::secondOpen, 3);    // nobody asks for a rating any more
}

ProgramWindow::~ProgramWindow() = default;

void ProgramWindow::store(EventRecord event) {
    sqlite::SqliteEventStore store(folder.path() / "events.sqlite");
    EventContext context(store);
    EXPECT_FALSE(store.load());
    context.insert(std::move(event));
    EXPECT_FALSE(context.save());
}

void ProgramWindow::stop() {
    hand.reset();
    program.reset();
}

void ProgramWindow::start() {
    stop();
    program = std::make_unique<Composition>(
        Machine::Settings{folder.path(), folder.path() / "cache", "en", [] {}, photos.address()}, clock,
        console);
    program->start();
    window().requestActivate();
    EXPECT_TRUE(runUntil([this] { return window().isExposed() && window().isActive(); }));
    hand = std::make_unique<Hand>(window());
    settle();
}

void ProgramWindow::settle() {
    constexpr std::chrono::milliseconds longestMotion{900};
    for (int part = 0; part < 6; ++part) {
        virtualtime::pass(longestMotion / 6);
        program->machine().waitForThreads();
    }
}

void ProgramWindow::key(Qt::Key key, Qt::KeyboardModifiers modifiers) {
    hand->press(key, modifiers);
    virtualtime::step();
}

QString ProgramWindow::focused() {
    auto* item = qobject_cast<QQuickItem*>(QGuiApplication::focusObject());
    return item ? accessibleName(*item) : QString();
}

void ProgramWindow::reach(const std::string& name) {
    std::string met;
    for (int stops = 0; stops < 40; ++stops) {
        if (focused() == QString::fromStdString(name))
            return;
        key(Qt::Key_Tab);
        met += "\n  " + focused().toStdString();
    }
    throw std::runtime_error("Tab does not come to \"" + name + "\", only to" + met);
}

ui::CollectionView& ProgramWindow::cards() const {
    const auto& tabs = dynamic_cast<ui::TabBarController&>(*program->stack().top());
    return dynamic_cast<ui::CollectionView&>(*tabs.selectedViewController()->controls.find("collection"));
}

} // namespace tessivo
