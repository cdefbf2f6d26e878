#include "bridge/Pressable.h"

#include "bridge/PressAccessible.h"
#include "bridge/ScreenPane.h"

#include <QKeyEvent>
#include <QQmlContext>
#include <QQmlEngine>
#include <QQmlProperty>

#include <utility>

namespace tessivo::shell {
namespace {

QAccessibleInterface* makeInterface(const QString&, QObject* object) {
    if (auto* const item = qobject_cast<Pressable*>(object))
        return new PressAccessible(*item);
    if (auto* const pane = qobject_cast<ScreenPane*>(object))
        return new PaneAccessible(*pane);
    return nullptr;
}

} // namespace

Pressable::Pressable(QQuickItem* parent) : QQuickItem(parent) {
    setActiveFocusOnTab(true);
}

void Pressable::makeAccessible() {
    QAccessible::installFactory(makeInterface);
}

void Pressable::click() {
    if (isEnabled())
        Q_EMIT clicked();
}

const QObject* Pressable::accessible() const {
    if (!accessible_ && !std::exchange(isLookingUp_, true)) {
        // The attached object asks for the item's interface while it is made.
        auto* const self = const_cast<Pressable*>(this); // a property is looked up for writing too
        accessible_ = QQmlProperty(self, QStringLiteral("Accessible.role"), qmlContext(self)).object();
        isLookingUp_ = false;
    }
    return accessible_;
}

bool Pressable::isAccessible() const {
    return accessible() && !accessible()->property("ignored").toBool();
}

void Pressable::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Space:
        // A key that is held down presses once.
        if (!event->isAutoRepeat())
            click();
        event->accept();
        break;
    default:
        QQuickItem::keyPressEvent(event);
    }
}

} // namespace tessivo::shell
