import QtQuick
import Tessivo

// A label in one look: that of its first piece.
Text {
    id: text

    required property LabelItem label

    visible: label.shown
    text: label.text
    color: label.pieces.length > 0 ? label.pieces[0].color : label.color
    font.pixelSize: Theme.type(label.pieces.length > 0 ? label.pieces[0].size : label.size)
    font.weight: label.pieces.length > 0 ? label.pieces[0].weight : label.weight
    horizontalAlignment: label.alignment
    maximumLineCount: Theme.largeText ? 2 * label.lineLimit : label.lineLimit
    wrapMode: maximumLineCount === 1 ? Text.NoWrap : Text.Wrap
    elide: Text.ElideRight
    textFormat: Text.PlainText
    Accessible.role: Accessible.StaticText
    Accessible.name: label.accessibleName
}
