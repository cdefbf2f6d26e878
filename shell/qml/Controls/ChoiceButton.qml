import QtQuick
import QtQuick.Templates as T
import Tessivo

// One answer of an alert or an action sheet.
T.AbstractButton {
    id: control

    required property alertChoice choice

    implicitHeight: 52
    activeFocusOnTab: true
    focusPolicy: Qt.StrongFocus
    Keys.onReturnPressed: clicked()
    Keys.onEnterPressed: clicked()
    Accessible.role: Accessible.Button
    Accessible.name: choice.title
    Accessible.onPressAction: clicked()

    contentItem: Text {
        text: control.choice.title
        font.pixelSize: Theme.body
        font.weight: control.choice.cancels ? Font.DemiBold : Font.Medium
        color: control.choice.destructive ? "#C6262E" : Theme.accent
        opacity: control.pressed ? 0.5 : 1
        horizontalAlignment: Text.AlignHCenter
        verticalAlignment: Text.AlignVCenter
        elide: Text.ElideRight
    }
    FocusRing { visible: control.visualFocus }
}
