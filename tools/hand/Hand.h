#pragma once

#include "hand/VirtualTime.h"

#include <QPointF>
#include <QRectF>
#include <QString>

#include <functional>
#include <vector>

class QPointingDevice;
class QQuickItem;
class QQuickWindow;

namespace tessivo {

using virtualtime::runUntil;

/// Everything that is drawn under `root`, itself included, the topmost last.
[[nodiscard]] std::vector<QQuickItem*> drawnItems(QQuickItem& root);

/// What a screen reader says of an item; empty where it says nothing.
[[nodiscard]] QString accessibleName(const QQuickItem& item);

/// The user's finger, mouse and keyboard on a window, in virtual time. Finds what is drawn by the name that a
/// screen reader would say; a name that nothing has throws, since all that follows would be about something
/// else.
class Hand {
public:
    /// `rest` follows each act, where something is to be waited for between them.
    explicit Hand(QQuickWindow& window, std::function<void()> rest = {});

    /// The topmost drawn item of that accessible name; null where there is none.
    [[nodiscard]] QQuickItem* find(const QString& name) const;
    /// Where the item of that name stands in the window.
    [[nodiscard]] QRectF placeOf(const QString& name) const;

    /// Touches the middle of the item of that accessible name once it is drawn, scrolling to it where it lies
    /// below the edge of its page.
    void tap(const QString& name);
    void tapAt(QPointF point);
    /// Touches a point and rests there until `done`.
    void hold(QPointF point, const std::function<bool()>& done);
    /// Drags in small steps and rests before letting go, so that nothing is thrown. Half-way it rests too,
    /// where something is to be done there.
    void drag(QPointF from, QPointF to, const std::function<void()>& halfWay = {});
    /// Moves two fingers apart or together about a point, in small steps.
    void pinch(QPointF center, double from, double to);
    /// Turns the mouse wheel over a point; notches up are positive.
    void turnMouseWheel(QPointF point, int notches);
    /// Moves two fingers over a touchpad in small steps while the pointer stands at a point, and lifts them.
    void slideOnTouchpad(QPointF point, QPointF way);
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    /// Hands text to what has the keyboard, as an on-screen keyboard does: whole, and of any kind.
    void commit(const QString& text);

private:
    void bringIntoReach(const QString& name);
    void rest() const;

    QQuickWindow& window_;
    std::function<void()> rest_;
};

/// The middle of an item in its window.
[[nodiscard]] QPointF middleOf(const QQuickItem& item);

} // namespace tessivo
