import QtQuick
import Tessivo

// A button of text. Filled, it is the main thing to do on its screen.
ButtonArea {
    id: control

    property bool filled: false

    implicitWidth: Math.max(Theme.touch, caption.implicitWidth + 32)
    implicitHeight: Math.max(filled ? 54 : Theme.touch, caption.implicitHeight + 16)

    Rectangle {
        anchors.fill: parent
        z: -1
        visible: control.filled
        radius: control.radius
        color: control.button.enabled ? Theme.accent : Theme.field
        Behavior on color { ColorAnimation { duration: Theme.quick } }
    }
    Text {
        id: caption
        anchors.fill: parent
        text: control.button.title
        font.pixelSize: Theme.type(control.button.size)
        font.weight: control.button.weight
        color: control.filled && control.button.enabled ? "white" : control.button.titleColor
        opacity: control.pressed && !control.filled ? 0.5 : 1
        horizontalAlignment: Text.AlignHCenter
        verticalAlignment: Text.AlignVCenter
        fontSizeMode: Text.HorizontalFit
        minimumPixelSize: 13
        elide: Text.ElideRight
        textFormat: Text.PlainText
    }
}
