import QtQuick
import Tessivo

// The two lines of a card, each cut with an ellipsis where it does not fit.
Column {
    id: column

    required property LabelItem label
    property real availableWidth: width

    spacing: 2
    Repeater {
        model: column.label.pieces
        Text {
            required property textPiece modelData
            width: column.availableWidth
            text: modelData.text
            color: modelData.color
            font.pixelSize: modelData.size
            font.weight: modelData.weight
            horizontalAlignment: column.label.alignment
            elide: Text.ElideRight
            maximumLineCount: 1
            textFormat: Text.PlainText
            Accessible.ignored: true
        }
    }
}
