import QtQuick

Text {
    width: parent.width
    wrapMode: Text.Wrap
    textFormat: Text.PlainText
    horizontalAlignment: Text.AlignLeft
    color: "#15171C"
    font.pixelSize: 15
    Accessible.role: Accessible.StaticText
    Accessible.name: text
}
