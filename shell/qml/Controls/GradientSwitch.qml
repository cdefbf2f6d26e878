import QtQuick
import QtQuick.Templates as T
import Tessivo

// The program's switch: its own fade fills it while it is on.
T.AbstractButton {
    id: control

    required property SwitchItem item

    readonly property real track: 31

    implicitWidth: 51
    implicitHeight: Theme.touch
    // Larger than it looks, so that a finger hits it.
    topInset: (height - track) / 2
    bottomInset: topInset
    topPadding: topInset
    bottomPadding: topInset
    enabled: item.interactive
    activeFocusOnTab: true
    focusPolicy: Qt.StrongFocus
    onClicked: item.toggle()
    Keys.onReturnPressed: clicked()
    Accessible.role: Accessible.CheckBox
    Accessible.name: item.accessibleName
    Accessible.checkable: true
    Accessible.checked: item.on
    Accessible.onPressAction: clicked()
    Accessible.onToggleAction: clicked()

    background: Item {
        Rectangle {
            anchors.fill: parent
            radius: height / 2
            color: "#D3D7E0"
        }
        CardPaint {
            anchors.fill: parent
            radius: height / 2
            fill: control.item.fill
            opacity: control.item.on ? 1 : 0
            Behavior on opacity { NumberAnimation { duration: Theme.quick } }
        }
    }
    contentItem: Item {
        Rectangle {
            readonly property bool atEnd: control.item.on !== (Qt.application.layoutDirection === Qt.RightToLeft)
            y: 2
            x: atEnd ? parent.width - width - 2 : 2
            width: 27
            height: 27
            radius: 13.5
            color: "white"
            Behavior on x { NumberAnimation { duration: Theme.quick; easing.type: Easing.InOutQuad } }
            SoftShadow { radius: 13.5; strength: 0.03 }
        }
    }
    FocusRing { target: control.background; visible: control.visualFocus; radius: 18 }
}
