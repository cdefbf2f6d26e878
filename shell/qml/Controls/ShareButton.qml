import QtQuick
import Tessivo

// An icon with its word under it, for one thing to do with a picture.
ButtonArea {
    id: control

    implicitHeight: 60 + word.implicitHeight + 8

    Column {
        width: parent.width
        spacing: 8
        Rectangle {
            anchors.horizontalCenter: parent.horizontalCenter
            width: 52
            height: 52
            radius: Theme.radius
            color: Theme.field
            Icon {
                anchors.centerIn: parent
                name: control.button.image
                tint: Theme.accent
            }
        }
        Text {
            id: word
            width: parent.width
            text: control.button.title
            font.pixelSize: Theme.caption
            font.weight: Font.Medium
            color: Theme.ink
            horizontalAlignment: Text.AlignHCenter
            fontSizeMode: Text.HorizontalFit
            minimumPixelSize: 11
            elide: Text.ElideRight
            textFormat: Text.PlainText
        }
    }
}
