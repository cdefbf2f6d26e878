#pragma once

#include "bridge/ButtonItem.h"
#include "bridge/Pressable.h"

namespace tessivo::shell {

/// Takes the touches and the mouse for everything that is pressed: buttons, tabs, rows, answers. With a
/// `button` it presses that one of the program, and is hidden and disabled with it. The drawing follows
/// `pressed` and `hovered`.
class PressArea : public Pressable {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(tessivo::shell::ButtonItem* button READ button WRITE setButton NOTIFY buttonChanged FINAL)
    Q_PROPERTY(bool pressed READ isPressed NOTIFY pressedChanged FINAL)
    Q_PROPERTY(bool hovered READ isHovered NOTIFY hoveredChanged FINAL)
    Q_PROPERTY(bool focusOnTouch MEMBER focusOnTouch_ FINAL)

public:
    explicit PressArea(QQuickItem* parent = nullptr);

    [[nodiscard]] ButtonItem* button() const { return button_; }
    void setButton(ButtonItem* button);
    /// A finger is down, and still over the area.
    [[nodiscard]] bool isPressed() const { return pressed_; }
    /// The mouse is over the area.
    [[nodiscard]] bool isHovered() const { return hovered_; }

    void click() override;
    [[nodiscard]] QString place() const override { return button_ ? button_->controlName : QString(); }

Q_SIGNALS:
    /// The button opens its menu.
    void menuOpened(tessivo::shell::MenuItem* menu);
    void buttonChanged();
    void pressedChanged();
    void hoveredChanged();

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    /// Comes after the press of a second quick tap, which is a tap like any other.
    void mouseDoubleClickEvent(QMouseEvent* event) override { event->accept(); }
    void mouseUngrabEvent() override;
    void hoverEnterEvent(QHoverEvent* event) override;
    void hoverLeaveEvent(QHoverEvent* event) override;
    void itemChange(ItemChange change, const ItemChangeData& data) override;

private:
    void setPressed(bool pressed);
    void setHovered(bool hovered);
    /// The finger that came down on the area is gone from it without a click.
    void letGo();
    void showCursor();

    QPointer<ButtonItem> button_;
    bool down_ = false; ///< a finger came down on the area, and has not been let go
    bool pressed_ = false;
    bool hovered_ = false;
    bool focusOnTouch_ = true;
};

} // namespace tessivo::shell
