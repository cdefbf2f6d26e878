import QtQuick
import Tessivo

// The wheels of a date picker side by side, over a band that marks what is picked.
Item {
    id: control

    required property DatePickerItem picker
    property list<real> shares: [0.34, 0.33, 0.33]

    implicitHeight: 180
    visible: picker.shown

    Rectangle {
        anchors.verticalCenter: parent.verticalCenter
        width: parent.width
        height: 36
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
                width: row.width * control.shares[index]
                height: row.height
                onLeftTowards: forward => dials.itemAt(index + (forward ? 1 : -1))?.forceActiveFocus(Qt.TabFocusReason)
            }
        }
    }
}
