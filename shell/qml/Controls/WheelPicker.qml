import QtQuick
import Tessivo

// The wheels of a date picker side by side, over a band that marks what is picked.
Item {
    id: control

    required property DatePickerItem picker
    readonly property real rowHeight: Math.max(36, Theme.type(20) + 14)
    property list<real> shares: [0.34, 0.33, 0.33]

    implicitHeight: 5 * rowHeight
    visible: picker.shown

    Rectangle {
        anchors.verticalCenter: parent.verticalCenter
        width: parent.width
        height: control.rowHeight
        radius: 10
        color: Theme.field
    }
    Row {
        id: row
        anchors.fill: parent
        anchors.leftMargin: 8
        anchors.rightMargin: 8
        Repeater {
            id: dials
            model: control.picker.wheelCount
            Wheel {
                required property int index
                picker: control.picker
                wheelIndex: index
                rowHeight: control.rowHeight
                width: row.width * control.shares[index]
                height: row.height
                onLeftTowards: forward => dials.itemAt(index + (forward ? 1 : -1))?.forceActiveFocus(Qt.TabFocusReason)
            }
        }
    }
}
