import QtQuick
import Tessivo

// The program's switch: its own fade fills it while it is on. Larger than it looks, so that a finger hits it.
PressArea {
    id: control

    required property SwitchItem item
    property string name: item.accessibleName

    implicitWidth: 51
    implicitHeight: Theme.touch
    enabled: item.interactive
    onClicked: item.toggle()
    Accessible.role: Accessible.CheckBox
    Accessible.name: name
    Accessible.checkable: true
    Accessible.checked: item.on

    Rectangle {
        id: track
        anchors.centerIn: parent
        width: parent.width
        height: 31
        radius: height / 2
        color: control.hovered ? "#C8CDD8" : "#D3D7E0"

        CardPaint {
            anchors.fill: parent
            radius: height / 2
            fill: control.item.fill
            opacity: control.item.on ? 1 : 0
            Behavior on opacity { NumberAnimation { duration: Theme.quick } }
        }
        Rectangle {
            readonly property bool atEnd: control.item.on !== (Qt.application.layoutDirection === Qt.RightToLeft)
            readonly property real stretch: control.pressed ? 4 : 0
            y: 2
            x: atEnd ? parent.width - width - 2 : 2
            width: 27 + stretch
            height: 27
            radius: 13.5
            color: "white"
            Behavior on x { NumberAnimation { duration: Theme.quick; easing.type: Easing.InOutQuad } }
            SoftShadow { radius: 13.5; strength: 0.03 }
        }
    }
    FocusRing { target: control; anchors.fill: track; radius: 18 }
}
