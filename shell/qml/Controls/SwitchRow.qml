import QtQuick
import Tessivo

// A row with a switch at its end. The whole row turns it.
Rectangle {
    id: row

    required property LabelItem label
    required property SwitchItem item
    property alias comesFirst: toggle.focus // the keyboard begins here

    implicitHeight: Math.max(Theme.rowHeight, caption.implicitHeight + 20)
    radius: Theme.radius
    color: Theme.field

    StyledLabel {
        id: caption
        label: row.label
        anchors.verticalCenter: parent.verticalCenter
        anchors.left: parent.left
        anchors.right: toggle.left
        anchors.leftMargin: Theme.margin
        anchors.rightMargin: 8
        Accessible.ignored: true
    }
    PressArea { // the switch is the one stop of the keyboard
        anchors.fill: parent
        activeFocusOnTab: false
        focusOnTouch: false
        enabled: row.item.interactive
        onClicked: toggle.click()
        Accessible.ignored: true
    }
    GradientSwitch {
        id: toggle
        item: row.item
        name: row.item.accessibleName.length > 0 ? row.item.accessibleName : row.label.text
        anchors.verticalCenter: parent.verticalCenter
        anchors.right: parent.right
        anchors.rightMargin: Theme.margin
    }
}
