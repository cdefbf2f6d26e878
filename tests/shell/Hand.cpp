#include "shell/Hand.h"

#include <QAccessible>
#include <QGuiApplication>
#include <QInputMethodEvent>
#include <QPointingDevice>
#include <QQuickItem>
#include <QQuickWindow>
#include <QTest>
#include <QWheelEvent>

#include <gtest/gtest.h>

#include <ranges>

namespace tessivo {
namespace {

constexpr int limit = 10'000; // ms
constexpr int stepsOfADrag = 12;
constexpr int notch = 120; // eighths of a degree, as a mouse reports it

void collect(QQuickItem& item, std::vector<QQuickItem*>& items) {
    if (!item.isVisible() || item.opacity() == 0)
        return;
    items.push_back(&item);
    for (auto* child : item.childItems())
        collect(*child, items);
}

QPointingDevice& touchScreen() {
    static QPointingDevice* device = QTest::createTouchDevice();
    return *device;
}

} // namespace

bool runUntil(const std::function<bool()>& done) {
    return QTest::qWaitFor(done, limit);
}

std::vector<QQuickItem*> drawnItems(QQuickItem& root) {
    std::vector<QQuickItem*> items;
    collect(root, items);
    return items;
}

QString accessibleName(const QQuickItem& item) {
    const auto* interface = QAccessible::queryAccessibleInterface(const_cast<QQuickItem*>(&item));
    return interface ? interface->text(QAccessible::Name) : QString();
}

QPointF middleOf(const QQuickItem& item) {
    return item.mapToScene({item.width() / 2, item.height() / 2});
}

Hand::Hand(QQuickWindow& window) : window_(window) {}

QQuickItem* Hand::find(const QString& name) const {
    const auto items = drawnItems(*window_.contentItem());
    for (auto* item : items | std::views::reverse) {
        if (item->width() > 0 && accessibleName(*item) == name)
            return item;
    }
    return nullptr;
}

void Hand::tap(const QString& name) {
    const bool found = runUntil([&] { return find(name) != nullptr; });
    ASSERT_TRUE(found) << "There is nothing named " << name.toStdString();
    tapAt(middleOf(*find(name)));
}

void Hand::tapAt(QPointF point) {
    QTest::touchEvent(&window_, &touchScreen()).press(0, point.toPoint());
    QTest::touchEvent(&window_, &touchScreen()).release(0, point.toPoint());
}

void Hand::hold(QPointF point, const std::function<bool()>& done) {
    QTest::touchEvent(&window_, &touchScreen()).press(0, point.toPoint());
    EXPECT_TRUE(runUntil(done));
    QTest::touchEvent(&window_, &touchScreen()).release(0, point.toPoint());
}

void Hand::drag(QPointF from, QPointF to) {
    QTest::touchEvent(&window_, &touchScreen()).press(0, from.toPoint());
    for (int step = 1; step <= stepsOfADrag; ++step) {
        QTest::qWait(8);
        const QPointF point = from + (to - from) * step / stepsOfADrag;
        QTest::touchEvent(&window_, &touchScreen()).move(0, point.toPoint());
    }
    QTest::qWait(150);
    QTest::touchEvent(&window_, &touchScreen()).release(0, to.toPoint());
}

void Hand::pinch(QPointF center, double from, double to) {
    const auto place = [&](double apart) { return QPointF(apart / 2, 0).toPoint(); };
    const QPoint middle = center.toPoint();
    QTest::touchEvent(&window_, &touchScreen()).press(0, middle - place(from)).press(1, middle + place(from));
    for (int step = 1; step <= stepsOfADrag; ++step) {
        QTest::qWait(8);
        const QPoint apart = place(from + (to - from) * step / stepsOfADrag);
        QTest::touchEvent(&window_, &touchScreen()).move(0, middle - apart).move(1, middle + apart);
    }
    QTest::touchEvent(&window_, &touchScreen()).release(0, middle - place(to)).release(1, middle + place(to));
}

void Hand::turnMouseWheel(QPointF point, int notches) {
    QWheelEvent event(point, window_.mapToGlobal(point), {}, {0, notches * notch}, Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(&window_, &event);
}

void Hand::press(Qt::Key key, Qt::KeyboardModifiers modifiers) {
    QTest::keyClick(&window_, key, modifiers);
}

void Hand::commit(const QString& text) {
    QInputMethodEvent event;
    event.setCommitString(text);
    QCoreApplication::sendEvent(QGuiApplication::focusObject(), &event);
}

} // namespace tessivo
