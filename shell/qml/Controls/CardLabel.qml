import QtQuick
import Tessivo

// The two lines of a card. Where there is room the upper one wraps, and then shrinks, before it is cut.
Column {
    id: column

    required property LabelItem label
    property real room: 0 // for both lines; none to spare if 0
    property real textScale: Theme.textScale
    property bool onPicture: false // a soft shadow parts the letters from what lies behind them
    /// Where the letters stand, in the column's parent.
    readonly property rect textArea: {
        let widest = 0, empty = 0, atRight = false;
        for (let line = 0; line < lines.count; ++line) {
            const text = lines.itemAt(line) as Text;
            widest = Math.max(widest, text?.contentWidth ?? 0);
            atRight = text?.effectiveHorizontalAlignment === Text.AlignRight;
            if (line === 0 && text)
                empty = text.height - text.contentHeight;
        }
        return Qt.rect(atRight ? x + width - widest : x, y + empty, widest, height - empty);
    }

    Repeater {
        id: lines
        model: column.label.pieces
        Text {
            id: line
            required property textPiece modelData
            required property int index
            readonly property bool grows: index === 0 && column.room > 0
            // Two lines of these letters and one of those below, as far as there is room.
            readonly property real share: Math.min(column.room * 0.62, metrics.height * 2)
            width: column.width
            height: grows ? Math.max(metrics.height, share) : implicitHeight
            text: modelData.text
            color: modelData.color
            font.pixelSize: Theme.scaledType(modelData.size, column.textScale)
            font.weight: modelData.weight
            fontSizeMode: grows ? Text.Fit : Text.HorizontalFit
            minimumPixelSize: 13
            horizontalAlignment: column.label.alignment
            verticalAlignment: Text.AlignBottom
            style: column.onPicture ? Text.Raised : Text.Normal
            styleColor: Theme.textShadow
            wrapMode: grows ? Text.Wrap : Text.NoWrap
            elide: Text.ElideRight
            maximumLineCount: grows ? 2 : 1
            textFormat: Text.PlainText
            Accessible.ignored: true

            FontMetrics {
                id: metrics
                font.pixelSize: Theme.scaledType(line.modelData.size, column.textScale)
                font.weight: line.modelData.weight
            }
        }
    }
}
