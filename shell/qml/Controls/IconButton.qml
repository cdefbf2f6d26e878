import QtQuick
import QtQuick.Templates as T
import Tessivo

// A button of one icon.
T.AbstractButton {
    id: control

    required property ButtonItem button
    property real side: 24
    property bool directional: false
    property color tint: button.tint.a > 0 ? button.tint : Theme.ink

    implicitWidth: Theme.touch
    implicitHeight: Theme.touch
    visible: button.shown
    enabled: button.enabled
    activeFocusOnTab: true
    focusPolicy: Qt.StrongFocus
    onPressed: button.press()
    onClicked: button.releaseInside()
    Keys.onReturnPressed: clicked()
    Keys.onEnterPressed: clicked()
    Accessible.role: Accessible.Button
    Accessible.name: button.accessibleName
    Accessible.onPressAction: clicked()

    contentItem: Item {
        Icon {
            anchors.centerIn: parent
            name: control.button.image
            side: control.side
            tint: control.tint
            mirror: control.directional && Qt.application.layoutDirection === Qt.RightToLeft
            opacity: control.pressed ? 0.4 : control.enabled ? 1 : 0.4
        }
    }
    FocusRing { visible: control.visualFocus }
}
