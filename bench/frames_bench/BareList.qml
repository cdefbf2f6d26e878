import QtQuick

// The least that a list of cards with shadows, and three buttons under each, can be: rectangles, texts, a
// picture of the shadow and one drag a row.
Window {
    width: 390
    height: 844
    visible: true

    ListView {
        anchors.fill: parent
        anchors.leftMargin: 18
        anchors.rightMargin: 18
        anchors.topMargin: 74
        model: 200
        spacing: 16
        reuseItems: true
        delegate: Item {
            id: row
            required property int index
            width: ListView.view.width
            height: 208
            Row {
                anchors.right: parent.right
                height: parent.height
                visible: card.x < 0
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
            Item {
                id: card
                width: parent.width
                height: parent.height
                BorderImage {
                    anchors { fill: parent; margins: -12 }
                    source: "image://shadow/24"
                    border { left: 40; top: 40; right: 40; bottom: 40 }
                }
                Rectangle {
                    anchors.fill: parent
                    radius: 24
                    color: Qt.hsva(row.index % 30 / 30, 0.5, 0.8, 1)
                }
                Column {
                    anchors { right: parent.right; top: parent.top; margins: 24 }
                    Text { anchors.right: parent.right; text: "10"; color: "white"; font.pixelSize: 22; font.weight: Font.DemiBold }
                    Text { anchors.right: parent.right; text: "Years"; color: "white"; font.pixelSize: 17 }
                }
                Column {
                    anchors { left: parent.left; bottom: parent.bottom; margins: 24 }
                    Text { text: "Anniversary number " + row.index; color: "white"; font.pixelSize: 22; font.weight: Font.DemiBold }
                    Text { text: "05 September 2015"; color: "white"; font.pixelSize: 17 }
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
