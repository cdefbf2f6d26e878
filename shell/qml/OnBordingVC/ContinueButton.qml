import QtQuick
import Tessivo

// The wide button of the tour, on a gradient of its own.
ButtonArea {
    id: control

    implicitHeight: Math.max(56, caption.implicitHeight + 20)
    radius: button.cornerRadius

    CardPaint {
        anchors.fill: parent
        z: -1
        radius: control.button.cornerRadius
        fill: control.button.fill
        opacity: control.pressed ? 0.92 : 1
        SoftShadow { radius: control.button.cornerRadius }
    }
    Text {
        id: caption
        anchors.fill: parent
        text: control.button.title
        color: control.button.titleColor
        font.pixelSize: Theme.type(control.button.size)
        font.weight: control.button.weight
        horizontalAlignment: Text.AlignHCenter
        verticalAlignment: Text.AlignVCenter
        elide: Text.ElideRight
        textFormat: Text.PlainText
    }
}
