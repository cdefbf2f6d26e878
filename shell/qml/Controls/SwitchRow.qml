import QtQuick
import Tessivo

// A row with a switch at its end. The whole row turns it.
Rectangle {
    id: row

    required property LabelItem label
    required property SwitchItem item

    implicitHeight: Theme.rowHeight
    radius: Theme.radius
    color: Theme.field

    StyledLabel {
        label: row.label
        anchors.verticalCenter: parent.verticalCenter
        anchors.left: parent.left
        anchors.leftMargin: Theme.margin
        Accessible.ignored: true
    }
    MouseArea {
        anchors.fill: parent
        enabled: row.item.interactive
        onClicked: row.item.toggle()
    }
    GradientSwitch {
        item: row.item
        anchors.verticalCenter: parent.verticalCenter
        anchors.right: parent.right
        anchors.rightMargin: Theme.margin
    }
}
