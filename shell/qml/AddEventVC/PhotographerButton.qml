import QtQuick
import Tessivo

// Who took a picture, over it. Opens their page.
ButtonArea {
    id: control

    required property real maximumWidth

    implicitWidth: Math.max(Theme.touch, Math.min(maximumWidth, row.width + 16))
    implicitHeight: Theme.touch
    pressedTint: 0
    Accessible.role: Accessible.Link

    Rectangle {
        anchors.fill: parent
        anchors.topMargin: 5
        anchors.bottomMargin: 5
        radius: control.button.cornerRadius
        color: control.button.fill.color
        opacity: control.pressed ? 0.7 : control.hovered ? 0.85 : 1
    }
    Row {
        id: row
        anchors.centerIn: parent
        spacing: 6
        Icon {
            anchors.verticalCenter: parent.verticalCenter
            name: control.button.image
            tint: control.button.titleColor
            side: 18
        }
        Text {
            anchors.verticalCenter: parent.verticalCenter
            visible: text.length > 0
            width: Math.min(implicitWidth, control.maximumWidth - 40)
            text: control.button.title
            color: control.button.titleColor
            font.pixelSize: Theme.type(15)
            elide: Text.ElideRight
            textFormat: Text.PlainText
        }
    }
}
