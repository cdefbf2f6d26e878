import QtQuick
import Tessivo

// A row that opens another screen: its whole width is one button, with a chevron at its end.
ButtonArea {
    id: row

    implicitHeight: Math.max(Theme.rowHeight, caption.implicitHeight + 20)

    Rectangle {
        anchors.fill: parent
        z: -1
        radius: row.radius
        color: Theme.field
    }
    Text {
        id: caption
        anchors.verticalCenter: parent.verticalCenter
        anchors.left: parent.left
        anchors.right: chevron.left
        anchors.leftMargin: Theme.margin
        anchors.rightMargin: 8
        text: row.button.title
        color: row.button.titleColor
        font.pixelSize: Theme.type(row.button.size)
        font.weight: row.button.weight
        horizontalAlignment: Text.AlignLeft
        elide: Text.ElideRight
        textFormat: Text.PlainText
    }
    Icon {
        id: chevron
        anchors.verticalCenter: parent.verticalCenter
        anchors.right: parent.right
        anchors.rightMargin: Theme.margin
        name: row.button.image
        tint: row.button.tint
        side: 18
        mirror: Qt.application.layoutDirection === Qt.RightToLeft
    }
}
