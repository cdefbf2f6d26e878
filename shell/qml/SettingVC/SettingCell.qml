import QtQuick
import Tessivo

// One row of the settings.
CollectionCell {
    id: row

    property bool showsValue: false
    readonly property ViewItem ground: cell.control("mainView")
    readonly property ImageItem icon: cell.control("image") as ImageItem
    readonly property ImageItem chevron: cell.control("chevronRight") as ImageItem

    signal reached(row: Item)

    onActiveFocusChanged: if (activeFocus) reached(row)

    Rectangle {
        anchors.fill: parent
        radius: row.ground.cornerRadius
        color: row.cell.highlighted ? Qt.darker(row.ground.fill.color, 1.12)
                                    : row.cell.hovered ? Qt.darker(row.ground.fill.color, 1.03) : row.ground.fill.color
        Behavior on color { ColorAnimation { duration: Theme.quick } }
    }
    Rectangle {
        id: tile
        anchors.left: parent.left
        anchors.leftMargin: 12
        anchors.verticalCenter: parent.verticalCenter
        width: 32
        height: 32
        radius: row.icon.cornerRadius
        color: row.icon.fill.color
        Icon {
            anchors.centerIn: parent
            name: row.icon.image
            tint: row.icon.tint
            side: 20
        }
    }
    StyledLabel {
        label: row.cell.control("text") as LabelItem
        anchors.left: tile.right
        anchors.leftMargin: 12
        anchors.right: value.left
        anchors.rightMargin: 8
        anchors.verticalCenter: parent.verticalCenter
        horizontalAlignment: Text.AlignLeft
        height: parent.height - 8
        verticalAlignment: Text.AlignVCenter
        wrapMode: Theme.largeText ? Text.WordWrap : Text.NoWrap
        fontSizeMode: Text.Fit
        minimumPixelSize: 12
        Accessible.ignored: true
    }
    Loader {
        id: value
        anchors.right: arrow.left
        anchors.rightMargin: 8
        anchors.verticalCenter: parent.verticalCenter
        active: row.showsValue
        sourceComponent: StyledLabel {
            label: row.cell.control("mainText") as LabelItem
            width: Math.min(implicitWidth, row.width * 0.42)
            maximumLineCount: 1
            fontSizeMode: Text.HorizontalFit
            minimumPixelSize: 12
            horizontalAlignment: Text.AlignRight
            Accessible.ignored: true
        }
    }
    Icon {
        id: arrow
        anchors.right: parent.right
        anchors.rightMargin: 14
        anchors.verticalCenter: parent.verticalCenter
        name: row.chevron.image
        tint: row.chevron.tint
        side: 16
        mirror: Qt.application.layoutDirection === Qt.RightToLeft
    }
    FocusRing { target: row; radius: row.ground.cornerRadius + 3 }
}
