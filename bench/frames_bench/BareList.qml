import QtQuick

// The least that a list of cards with three buttons under each can be: rectangles, texts and one drag a row.
Window {
    width: 390
    height: 844
    visible: true

    ListView {
        anchors.fill: parent
        anchors.margins: 16
        model: 200
        spacing: 16
        delegate: Item {
            id: row
            required property int index
            width: ListView.view.width
            height: 200
            Row {
                anchors.right: parent.right
                height: parent.height
                Repeater {
                    model: ["#D9363E", "#6B7280", "#4A3FDB"]
                    Rectangle {
                        required property color modelData
                        width: 72
                        height: parent.height
                        color: modelData
                    }
                }
            }
            Rectangle {
                id: card
                width: parent.width
                height: parent.height
                radius: 16
                color: Qt.hsva(row.index % 30 / 30, 0.5, 0.8, 1)
                Text {
                    anchors { right: parent.right; top: parent.top; margins: 24 }
                    text: "10 Years"
                    color: "white"
                    font.pixelSize: 20
                }
                Text {
                    anchors { left: parent.left; bottom: parent.bottom; margins: 24 }
                    text: "Anniversary number " + row.index
                    color: "white"
                    font.pixelSize: 20
                }
                NumberAnimation on x {
                    id: back
                    running: false
                    to: 0
                    duration: 700
                    easing.type: Easing.OutCubic
                }
            }
            DragHandler {
                target: card
                yAxis.enabled: false
                onActiveChanged: if (!active) back.start()
            }
        }
    }
}
