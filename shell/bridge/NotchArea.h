#pragma once

#include <QElapsedTimer>
#include <QPointer>
#include <QQuickItem>

class QQuickWindow;

namespace tessivo::shell {

/// Turns the mouse wheel and the touchpad into steps for a control that stands in a scrolling page. Only
/// scrolling that began over the control, or finds it with the keyboard, is for it: one that brings the
/// control under a resting mouse goes on with the page.
class NotchArea : public QQuickItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QQuickItem* over READ over WRITE setOver FINAL)

public:
    explicit NotchArea(QQuickItem* parent = nullptr) : QQuickItem(parent) {}

    /// An item under the area that would scroll by itself. Scrolling passes it by, on to the page.
    [[nodiscard]] QQuickItem* over() const { return over_; }
    void setOver(QQuickItem* item);

    /// Sees the window's wheel events before any item does.
    bool eventFilter(QObject* watched, QEvent* event) override;

Q_SIGNALS:
    /// So many notches downwards; negative upwards.
    void turned(int steps);

protected:
    void wheelEvent(QWheelEvent* event) override;
    void itemChange(ItemChange change, const ItemChangeData& data) override;

private:
    QPointer<QQuickWindow> watched_;
    QPointer<QQuickItem> over_;
    QElapsedTimer sinceLast_; ///< since the last wheel event anywhere on the window
    bool beganHere_ = false;
    int rest_ = 0; ///< of a notch, in eighths of a degree
};

} // namespace tessivo::shell
