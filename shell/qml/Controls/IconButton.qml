import QtQuick
import Tessivo

// A button of one icon.
ButtonArea {
    id: control

    property real side: 24
    property bool directional: false
    property color tint: button.tint.a > 0 ? button.tint : Theme.ink

    implicitWidth: Theme.touch
    implicitHeight: Theme.touch

    Icon {
        anchors.centerIn: parent
        name: control.button.image
        side: control.side
        tint: control.tint
        mirror: control.directional && Qt.application.layoutDirection === Qt.RightToLeft
        opacity: control.pressed || !control.button.enabled ? 0.4 : 1
    }
}
