import QtQuick
import Tessivo

// The two lines of a label in large type. The upper one wraps before it is cut.
Column {
    id: column

    required property LabelItem label
    property int upperLines: 1
    property bool onPicture: false

    spacing: 2
    Accessible.role: Accessible.StaticText
    Accessible.name: label.accessibleName

    Repeater {
        model: column.label.pieces
        Text {
            required property textPiece modelData
            required property int index
            width: column.width
            text: modelData.text
            color: modelData.color
            font.pixelSize: Theme.type(modelData.size)
            font.weight: modelData.weight
            horizontalAlignment: Text.AlignLeft
            style: column.onPicture ? Text.Raised : Text.Normal
            styleColor: Theme.textShadow
            wrapMode: Text.Wrap
            maximumLineCount: index === 0 ? column.upperLines : 1
            elide: Text.ElideRight
            lineHeight: 1.05
            textFormat: Text.PlainText
            Accessible.ignored: true
        }
    }
}
