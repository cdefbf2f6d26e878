import QtQuick
import Tessivo

// A row of buttons that the program hangs on a cell: its ground, the ground of each button, the buttons.
Rectangle {
    id: row

    required property LooseViewItem view

    x: view.x
    y: view.y
    width: view.width
    height: view.height
    color: view.fill.color
    clip: view.clips

    Repeater {
        model: row.view.children
        Rectangle {
            id: ground
            required property LooseViewItem modelData
            x: modelData.x - row.view.boundsX
            y: modelData.y
            width: modelData.width
            height: modelData.height
            color: modelData.fill.color
            Repeater {
                model: ground.modelData.children
                Item {
                    id: button
                    required property LooseViewItem modelData
                    x: modelData.x
                    y: modelData.y
                    width: modelData.width
                    height: modelData.height
                    opacity: modelData.alpha
                    scale: modelData.scale
                    Accessible.role: Accessible.Button
                    Accessible.name: modelData.accessibleName
                    Accessible.onPressAction: modelData.activate()
                    Icon {
                        anchors.centerIn: parent
                        name: button.modelData.image
                        side: Math.min(button.width, button.height) - 16
                    }
                    Text {
                        anchors.bottom: parent.bottom
                        width: parent.width
                        text: button.modelData.title
                        color: "white"
                        font.pixelSize: 15
                        font.weight: Font.Medium
                        wrapMode: Text.Wrap
                        horizontalAlignment: Text.AlignHCenter
                        visible: text.length > 0
                    }
                }
            }
        }
    }
}
