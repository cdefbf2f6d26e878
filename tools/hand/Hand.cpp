#include "hand/Hand.h"

#include <QAccessible>
#include <QGuiApplication>
#include <QInputMethodEvent>
#include <QPointingDevice>
#include <QQuickItem>
#include <QQuickWindow>
#include <QTest>
#include <QWheelEvent>

#include <algorithm>
#include <ranges>
#include <stdexcept>

namespace tessivo {
namespace {

using std::chrono::milliseconds;

constexpr milliseconds touchTime{30};
constexpr milliseconds restHalfWay{100};
constexpr milliseconds restBeforeRelease{200};
constexpr int stepsOfADrag = 12;
constexpr int scrollAttempts = 5;
constexpr double scrollMargin = 30;
constexpr int notch = 120; // eighths of a degree, as a mouse reports it

void collect(QQuickItem& item, std::vector<QQuickItem*>& items) {
    if (!item.isVisible() || item.opacity() == 0)
        return;
    items.push_back(&item);
    for (auto* child : item.childItems())
        collect(*child, items);
}

/// Now, as an event from a device tells it. A list does not scroll by events without a time.
quint64 timeStamp() {
    return static_cast<quint64>(
        std::chrono::duration_cast<milliseconds>(std::chrono::steady_clock::now().time_since_epoch())
            .count());
}

QPointingDevice& touchScreen() {
    static QPointingDevice* device = QTest::createTouchDevice();
    return *device;
}

QTest::QTouchEventSequence touch(QQuickWindow& window) {
    return QTest::touchEvent(&window, &touchScreen());
}

QRectF placeInWindow(const QQuickItem& item) {
    return item.mapRectToScene(QRectF(0, 0, item.width(), item.height()));
}

/// The list or page that scrolls up and down with the item in it; null for an item that stands still.
const QQuickItem* pageOf(const QQuickItem& item) {
    for (const QQuickItem* ancestor = item.parentItem(); ancestor; ancestor = ancestor->parentItem()) {
        if (ancestor->inherits("QQuickFlickable") &&
            ancestor->property("contentHeight").toDouble() > ancestor->height())
            return ancestor;
    }
    return nullptr;
}

} // namespace

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
    return placeInWindow(item).center();
}

Hand::Hand(QQuickWindow& window, std::function<void()> rest) : window_(window), rest_(std::move(rest)) {}

QQuickItem* Hand::find(const QString& name) const {
    const auto items = drawnItems(*window_.contentItem());
    for (auto* item : items | std::views::reverse) {
        if (item->width() > 0 && accessibleName(*item) == name)
            return item;
    }
    return nullptr;
}

QRectF Hand::placeOf(const QString& name) const {
    if (const auto* item = find(name))
        return placeInWindow(*item);
    throw std::runtime_error("There is nothing named \"" + name.toStdString() + "\" on the screen");
}

void Hand::tap(const QString& name) {
    static_cast<void>(runUntil([&] { return find(name) != nullptr; }));
    bringIntoReach(name);
    tapAt(placeOf(name).center());
}

void Hand::bringIntoReach(const QString& name) {
    for (int attempt = 0; attempt < scrollAttempts; ++attempt) {
        const double bottom = placeOf(name).bottom();
        const QQuickItem* page = pageOf(*find(name));
        if (!page)
            return;
        const QRectF view = placeInWindow(*page);
        if (bottom <= view.bottom())
            return;
        drag(view.center(),
             view.center() - QPointF(0, std::min(bottom - view.bottom() + scrollMargin, view.height() / 2)));
    }
}

void Hand::tapAt(QPointF point) {
    touch(window_).press(0, point.toPoint());
    virtualtime::pass(touchTime);
    touch(window_).release(0, point.toPoint());
    rest();
}

void Hand::hold(QPointF point, const std::function<bool()>& done) {
    touch(window_).press(0, point.toPoint());
    const bool came = runUntil(done);
    touch(window_).release(0, point.toPoint());
    if (!came)
        throw std::runtime_error("Nothing came of the finger that rested");
    rest();
}

void Hand::drag(QPointF from, QPointF to, const std::function<void()>& halfWay) {
    touch(window_).press(0, from.toPoint());
    for (int step = 1; step <= stepsOfADrag; ++step) {
        virtualtime::step();
        const QPointF point = from + (to - from) * step / stepsOfADrag;
        touch(window_).move(0, point.toPoint());
        if (halfWay && step == stepsOfADrag / 2) {
            virtualtime::pass(restHalfWay);
            halfWay();
        }
    }
    virtualtime::pass(restBeforeRelease);
    touch(window_).release(0, to.toPoint());
    rest();
}

void Hand::pinch(QPointF center, double from, double to) {
    const auto place = [&](double apart) { return QPointF(apart / 2, 0).toPoint(); };
    const QPoint middle = center.toPoint();
    touch(window_).press(0, middle - place(from)).press(1, middle + place(from));
    for (int step = 1; step <= stepsOfADrag; ++step) {
        virtualtime::step();
        const QPoint apart = place(from + (to - from) * step / stepsOfADrag);
        touch(window_).move(0, middle - apart).move(1, middle + apart);
    }
    touch(window_).release(0, middle - place(to)).release(1, middle + place(to));
    rest();
}

void Hand::turnMouseWheel(QPointF point, int notches) {
    QWheelEvent event(point, window_.mapToGlobal(point), {}, {0, notches * notch}, Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    virtualtime::step();
    event.setTimestamp(timeStamp());
    QCoreApplication::sendEvent(&window_, &event);
    rest();
}

void Hand::slideOnTouchpad(QPointF point, QPointF way) {
    const auto send = [&](QPointF part, Qt::ScrollPhase phase) {
        virtualtime::step();
        QWheelEvent event(point, window_.mapToGlobal(point), part.toPoint(), (part * 2).toPoint(),
                          Qt::NoButton, Qt::NoModifier, phase, false);
        event.setTimestamp(timeStamp());
        QCoreApplication::sendEvent(&window_, &event);
    };
    send(way / stepsOfADrag, Qt::ScrollBegin);
    for (int step = 1; step < stepsOfADrag; ++step)
        send(way / stepsOfADrag, Qt::ScrollUpdate);
    virtualtime::pass(restBeforeRelease);
    send({}, Qt::ScrollEnd);
    rest();
}

void Hand::press(Qt::Key key, Qt::KeyboardModifiers modifiers) {
    QTest::keyClick(&window_, key, modifiers);
    rest();
}

void Hand::commit(const QString& text) {
    QObject* const focus = QGuiApplication::focusObject();
    if (!focus)
        throw std::runtime_error("Nothing has the keyboard");
    QInputMethodEvent event;
    event.setCommitString(text);
    QCoreApplication::sendEvent(focus, &event);
    rest();
}

void Hand::rest() const {
    if (rest_)
        rest_();
}

} // namespace tessivo
