#pragma once

#include <QPointF>
#include <QString>
#include <QStringList>

#include <functional>
#include <vector>

class QPointingDevice;
class QQuickItem;
class QQuickWindow;

namespace tessivo {

/// Runs the main loop until `done`; false where that has not come about before a bound that only a fault
/// reaches.
[[nodiscard]] bool runUntil(const std::function<bool()>& done);

/// Everything that is drawn under `root`, itself included, the topmost last.
[[nodiscard]] std::vector<QQuickItem*> drawnItems(QQuickItem& root);

/// What a screen reader says of an item; empty where it says nothing.
[[nodiscard]] QString accessibleName(const QQuickItem& item);

/// The user's finger, mouse and keyboard on a window.
class Hand {
public:
    explicit Hand(QQuickWindow& window);

    /// The topmost drawn item of that accessible name; null where there is none.
    [[nodiscard]] QQuickItem* find(const QString& name) const;

    /// Touches the middle of the item of that accessible name, once it is drawn.
    void tap(const QString& name);
    void tapAt(QPointF point);
    /// Touches a point and rests there until `done`.
    void hold(QPointF point, const std::function<bool()>& done);
    /// Drags in small steps and rests before letting go, so that nothing is thrown.
    void drag(QPointF from, QPointF to);
    /// Moves two fingers apart or together about a point, in small steps.
    void pinch(QPointF center, double from, double to);
    /// Turns the mouse wheel over a point; notches up are positive.
    void turnMouseWheel(QPointF point, int notches);
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    /// Hands over text as an on-screen keyboard does: whole, and of any kind.
    void commit(const QString& text);

private:
    QQuickWindow& window_;
};

/// The middle of an item in its window.
[[nodiscard]] QPointF middleOf(const QQuickItem& item);

} // namespace tessivo
