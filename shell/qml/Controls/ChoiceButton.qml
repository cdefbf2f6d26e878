import QtQuick
import Tessivo

// One answer of an alert or an action sheet.
ButtonArea {
    id: control

    required property alertChoice choice

    implicitWidth: caption.implicitWidth + 16
    implicitHeight: Math.max(52, Theme.body + 35)
    Accessible.name: choice.title

    Text {
        id: caption
        anchors.fill: parent
        anchors.leftMargin: 8
        anchors.rightMargin: 8
        text: control.choice.title
        font.pixelSize: Theme.body
        font.weight: control.choice.cancels ? Font.DemiBold : Font.Medium
        color: control.choice.destructive ? "#C6262E" : Theme.accent
        horizontalAlignment: Text.AlignHCenter
        verticalAlignment: Text.AlignVCenter
        wrapMode: Text.Wrap
        maximumLineCount: 2
        fontSizeMode: Text.Fit
        minimumPixelSize: 13
        elide: Text.ElideRight
        textFormat: Text.PlainText
    }
}
