import QtQuick
import Tessivo

// The rows of the value picker.
FocusScope {
    id: picker

    required property ScreenItem screen
    readonly property CollectionItem table: screen.control("tableView") as CollectionItem

    focus: true

    CollectionFlick {
        id: rows
        anchors.fill: parent
        anchors.topMargin: 30
        collection: picker.table
        bottomMargin: 16
        delegate: CollectionCell {
            id: row

            readonly property LabelItem label: cell.control("label") as LabelItem
            readonly property ImageItem mark: cell.control("checkmarkImageView") as ImageItem
            readonly property bool chosen: mark.image !== ""

            focus: chosen
            Accessible.role: Accessible.RadioButton
            Accessible.name: label.text
            Accessible.checkable: true
            Accessible.checked: chosen

            Rectangle {
                anchors.fill: parent
                color: Theme.field
                opacity: row.cell.highlighted ? 0.7 : 0
            }
            StyledLabel {
                label: row.label
                anchors.verticalCenter: parent.verticalCenter
                anchors.left: parent.left
                anchors.right: circle.left
                anchors.margins: Theme.margin
                Accessible.ignored: true
            }
            Rectangle {
                id: circle
                anchors.verticalCenter: parent.verticalCenter
                anchors.right: parent.right
                anchors.rightMargin: Theme.margin
                width: 20
                height: 20
                radius: row.mark.cornerRadius
                color: row.mark.fill.color
                border.color: row.mark.tint
                border.width: row.chosen ? 0.5 : 1.5
                Icon {
                    anchors.centerIn: parent
                    name: row.mark.image
                    tint: row.mark.tint
                    side: 14
                }
            }
            FocusRing { target: row; anchors.margins: 4 }
        }
    }
}
