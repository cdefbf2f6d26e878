#include "Finger.h"

#include <QAccessible>
#include <QGuiApplication>
#include <QInputMethodEvent>
#include <QQuickItem>
#include <QQuickWindow>
#include <QTest>

#include <algorithm>
#include <cstdlib>

namespace tessivo::tour {
namespace {

constexpr int stepsOfADrag = 12;
constexpr int scrollAttempts = 5;
constexpr int settlingTime = 900; // ms: the longest motion, and the frames around it

bool isDrawn(const QQuickItem& item) {
    for (const QQuickItem* ancestor = &item; ancestor; ancestor = ancestor->parentItem()) {
        if (!ancestor->isVisible() || ancestor->opacity() == 0)
            return false;
    }
    return item.width() > 0;
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

/// The topmost drawn item of that name: later siblings lie over earlier ones.
QQuickItem* search(QQuickItem& item, const QString& name) {
    const auto children = item.childItems();
    for (qsizetype index = children.size(); index > 0; --index) {
        if (auto* found = search(*children[index - 1], name))
            return found;
    }
    if (!isDrawn(item))
        return nullptr;
    const auto* interface = QAccessible::queryAccessibleInterface(&item);
    return interface && interface->text(QAccessible::Name) == name ? &item : nullptr;
}

} // namespace

Finger::Finger(QQuickWindow& window) : window_(window), device_(QTest::createTouchDevice()) {
    QAccessible::setActive(true);
}

QQuickItem* Finger::find(const QString& name) {
    auto* item = search(*window_.contentItem(), name);
    if (!item) {
        qCritical("There is nothing named %s on the screen", qPrintable(name));
        std::exit(EXIT_FAILURE);
    }
    return item;
}

QRectF Finger::placeOf(const QString& name) {
    const auto* item = find(name);
    return item->mapRectToScene(QRectF(0, 0, item->width(), item->height()));
}

void Finger::tap(const QString& name) {
    bringIntoReach(name);
    tapAt(placeOf(name).center());
}

void Finger::bringIntoReach(const QString& name) {
    for (int attempt = 0; attempt < scrollAttempts; ++attempt) {
        const QQuickItem* page = pageOf(*find(name));
        if (!page)
            return;
        const QRectF view = page->mapRectToScene(QRectF(0, 0, page->width(), page->height()));
        const double beyond = placeOf(name).bottom() - view.bottom();
        if (beyond <= 0)
            return;
        drag(view.center(), view.center() - QPointF(0, std::min(beyond + 30, view.height() / 2)));
    }
}

void Finger::tapAt(QPointF point) {
    QTest::touchEvent(&window_, device_).press(0, point.toPoint());
    QTest::qWait(30);
    QTest::touchEvent(&window_, device_).release(0, point.toPoint());
    settle();
}

void Finger::drag(QPointF from, QPointF to, const std::function<void()>& halfWay) {
    QTest::touchEvent(&window_, device_).press(0, from.toPoint());
    for (int step = 1; step <= stepsOfADrag; ++step) {
        const QPointF point = from + (to - from) * step / stepsOfADrag;
        QTest::qWait(16);
        QTest::touchEvent(&window_, device_).move(0, point.toPoint());
        if (halfWay && step == stepsOfADrag / 2) {
            QTest::qWait(100);
            halfWay();
        }
    }
    QTest::qWait(200);
    QTest::touchEvent(&window_, device_).release(0, to.toPoint());
    settle();
}

void Finger::hold(QPointF point) {
    QTest::touchEvent(&window_, device_).press(0, point.toPoint());
    settle();
    QTest::touchEvent(&window_, device_).release(0, point.toPoint());
    settle();
}

void Finger::press(Qt::Key key) {
    QTest::keyClick(&window_, key);
    settle();
}

void Finger::type(const QString& text) {
    // As an on-screen keyboard hands text over, so that characters of any kind come whole.
    QInputMethodEvent event;
    event.setCommitString(text);
    QCoreApplication::sendEvent(QGuiApplication::focusObject(), &event);
    settle();
}

void Finger::settle() {
    QTest::qWait(settlingTime);
}

} // namespace tessivo::tour
