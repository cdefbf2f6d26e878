import QtQuick
import Tessivo

// A line of text whose pieces differ, such as a count among words.
Row {
    id: row

    required property LabelItem label

    visible: label.shown
    Accessible.role: Accessible.StaticText
    Accessible.name: label.accessibleName
    Repeater {
        model: row.label.pieces
        Text {
            required property textPiece modelData
            text: modelData.text
            color: modelData.color
            font.pixelSize: modelData.size
            font.weight: modelData.weight
            textFormat: Text.PlainText
            Accessible.ignored: true
        }
    }
}
