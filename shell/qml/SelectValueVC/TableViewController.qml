import QtQuick
import Tessivo

// The rows of the value picker.
Item {
    id: picker

    required property ScreenItem screen
    readonly property CollectionItem table: screen.control("tableView") as CollectionItem

    CollectionFlick {
        id: rows
        anchors.fill: parent
        anchors.topMargin: 30
        collection: picker.table
        bottomMargin: 16
        delegate: FocusScope {
            id: row

            required property CellItem cell
            readonly property LabelItem label: cell.control("label") as LabelItem
            readonly property ImageItem mark: cell.control("checkmarkImageView") as ImageItem

            x: cell.x
            y: cell.y
            width: cell.width
            height: cell.height
            activeFocusOnTab: true
            onActiveFocusChanged: if (activeFocus) rows.reveal(row)
            Keys.onReturnPressed: rows.collection.tapItem(cell.item)
            Keys.onSpacePressed: rows.collection.tapItem(cell.item)
            Accessible.role: Accessible.RadioButton
            Accessible.name: label.text
            Accessible.checked: cell.selected
            Accessible.onPressAction: rows.collection.tapItem(cell.item)

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
                border.width: row.cell.selected ? 0.5 : 1.5
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
