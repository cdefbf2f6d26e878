import QtQuick
import Tessivo

// One value of an option screen. The mark stands at the value that held when the screen opened.
CollectionCell {
    id: row

    readonly property ImageItem mark: cell.control("checkmarkImageView") as ImageItem

    focus: mark.image.length > 0
    Accessible.role: Accessible.RadioButton
    Accessible.checkable: true
    Accessible.checked: mark.image.length > 0

    Rectangle {
        anchors.fill: parent
        anchors.leftMargin: 8
        anchors.rightMargin: 8
        radius: 12
        color: Theme.field
        opacity: row.cell.highlighted ? 1 : row.cell.hovered ? 0.5 : 0
        Behavior on opacity { NumberAnimation { duration: Theme.quick } }
    }
    StyledLabel {
        label: row.cell.control("label") as LabelItem
        anchors.left: parent.left
        anchors.leftMargin: 20
        anchors.right: check.left
        anchors.rightMargin: 8
        anchors.verticalCenter: parent.verticalCenter
        horizontalAlignment: Text.AlignLeft
        Accessible.ignored: true
    }
    Icon {
        id: check
        anchors.right: parent.right
        anchors.rightMargin: 20
        anchors.verticalCenter: parent.verticalCenter
        name: row.mark.image
        tint: row.mark.tint
        side: 22
    }
    FocusRing { target: row; anchors.margins: 4; radius: 12 }
}
