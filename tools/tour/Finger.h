#pragma once

#include <QPointF>
#include <QRectF>
#include <QString>

#include <functional>

class QPointingDevice;
class QQuickItem;
class QQuickWindow;

namespace tessivo::tour {

/// A finger and a keyboard on the program's window: finds what is drawn by the name that a screen reader
/// would say, and touches it. What cannot be found ends the tour, since every later picture would be of
/// something else.
class Finger {
public:
    explicit Finger(QQuickWindow& window);

    /// Touches the middle of the control of that accessible name, scrolling to it where it lies out of reach.
    void tap(const QString& name);
    /// Touches a point of the window.
    void tapAt(QPointF point);
    /// Drags from one point to another in small steps, and rests before letting go. Half-way it rests too,
    /// where something is to be done there.
    void drag(QPointF from, QPointF to, const std::function<void()>& halfWay = {});
    /// Touches a point and rests there, until whatever comes of that has come.
    void hold(QPointF point);
    void press(Qt::Key key);
    /// Types into what has the keyboard.
    void type(const QString& text);
    /// Waits until nothing moves any more.
    void settle();

    /// Where the control of that name stands in the window.
    [[nodiscard]] QRectF placeOf(const QString& name);

private:
    void bringIntoReach(const QString& name);
    [[nodiscard]] QQuickItem* find(const QString& name);

    QQuickWindow& window_;
    QPointingDevice* device_;
};

} // namespace tessivo::tour
