import QtQuick
import Tessivo

// A row of buttons that the program hangs on a cell, drawn as the program has laid it out: grounds, and on them
// the buttons, each with its picture and its text in their places.
Rectangle {
    id: row

    required property LooseViewItem view

    x: view.x
    y: view.y
    width: view.width
    height: view.height
    color: view.fill.color
    clip: view.clips

    component Face: Item {
        id: face
        required property LooseViewItem button
        readonly property rect imageRect: button.imageRect
        readonly property rect titleRect: button.titleRect
        readonly property textPiece look: button.look
        width: button.width
        height: button.height
        Accessible.role: Accessible.Button
        Accessible.name: button.accessibleName
        Accessible.onPressAction: button.activate()
        Rectangle {
            anchors.fill: parent
            visible: face.button.hovered
            color: Theme.ink
            opacity: 0.05
        }
        Icon {
            x: face.imageRect.x
            y: face.imageRect.y
            name: face.button.image
            side: face.imageRect.width
        }
        Text {
            x: face.titleRect.x
            y: face.titleRect.y
            width: face.titleRect.width
            height: face.titleRect.height
            visible: text.length > 0
            text: face.look.text
            color: face.look.color
            font.pixelSize: face.look.size
            font.weight: face.look.weight
            textFormat: Text.PlainText
            wrapMode: Text.Wrap
            horizontalAlignment: Text.AlignHCenter
            Accessible.ignored: true
        }
    }
    Component {
        id: piece
        Rectangle {
            id: drawn
            required property LooseViewItem modelData
            property real scrolled: 0
            x: modelData.x - scrolled
            y: modelData.y
            width: modelData.width
            height: modelData.height
            color: modelData.fill.color
            opacity: modelData.alpha
            scale: modelData.scale
            Loader {
                active: drawn.modelData.pressable
                sourceComponent: Face { button: drawn.modelData }
            }
            Repeater {
                model: drawn.modelData.children
                delegate: piece
            }
        }
    }
    Repeater {
        model: row.view.children
        delegate: piece
        onItemAdded: (index, item) => {
            item.scrolled = Qt.binding(() => row.view.boundsX);
        }
    }
}
