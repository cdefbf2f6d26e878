import QtQuick
import QtQuick.Templates as T
import Tessivo

// A button of text. Filled, it is the main thing to do on its screen.
T.AbstractButton {
    id: control

    required property ButtonItem button
    property bool filled: false

    implicitWidth: Math.max(Theme.touch, caption.implicitWidth + 32)
    implicitHeight: filled ? 54 : Theme.touch
    visible: button.shown
    enabled: button.enabled
    text: button.title
    activeFocusOnTab: true
    focusPolicy: Qt.StrongFocus
    onPressed: button.press()
    onReleased: if (!hovered && !pressed) button.releaseOutside()
    onClicked: button.releaseInside()
    Keys.onReturnPressed: clicked()
    Keys.onEnterPressed: clicked()
    Accessible.role: Accessible.Button
    Accessible.name: button.accessibleName
    Accessible.onPressAction: clicked()

    background: Rectangle {
        visible: control.filled
        radius: Theme.radius
        color: control.enabled ? Theme.accent : Theme.field
        opacity: control.pressed ? 0.85 : 1
        Behavior on color { ColorAnimation { duration: Theme.quick } }
    }
    contentItem: Text {
        id: caption
        text: control.button.title
        font.pixelSize: control.button.size
        font.weight: control.button.weight
        color: control.filled && control.enabled ? "white" : control.button.titleColor
        opacity: control.pressed && !control.filled ? 0.5 : 1
        horizontalAlignment: Text.AlignHCenter
        verticalAlignment: Text.AlignVCenter
        elide: Text.ElideRight
    }
    FocusRing { visible: control.visualFocus }
}
