import QtQuick
import Tessivo

// The two lines of a card, each cut with an ellipsis where it does not fit.
Column {
    id: column

    required property LabelItem label
    property real availableWidth: width
    property bool onPicture: false // a soft shadow parts the letters from what lies behind them
    /// Where the letters stand, in the column's parent.
    readonly property rect textArea: {
        let widest = 0, atRight = false;
        for (let line = 0; line < lines.count; ++line) {
            const text = lines.itemAt(line) as Text;
            widest = Math.max(widest, text?.contentWidth ?? 0);
            atRight = text?.effectiveHorizontalAlignment === Text.AlignRight;
        }
        return Qt.rect(atRight ? x + width - widest : x, y, widest, height);
    }

    spacing: 2
    Repeater {
        id: lines
        model: column.label.pieces
        Text {
            required property textPiece modelData
            width: column.availableWidth
            text: modelData.text
            color: modelData.color
            font.pixelSize: modelData.size
            font.weight: modelData.weight
            horizontalAlignment: column.label.alignment
            style: column.onPicture ? Text.Raised : Text.Normal
            styleColor: Theme.textShadow
            elide: Text.ElideRight
            maximumLineCount: 1
            textFormat: Text.PlainText
            Accessible.ignored: true
        }
    }
}
