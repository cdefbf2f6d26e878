import QtQuick

// A soft shadow under a rounded rectangle: faint outlines that grow and sink.
Item {
    id: shadow

    property real radius: 16
    property real strength: 0.022

    anchors.fill: parent
    z: -1
    Repeater {
        model: 6
        Rectangle {
            required property int index
            x: -index
            y: -index + 3 + index * 0.6
            width: shadow.width + 2 * index
            height: shadow.height + 2 * index
            radius: shadow.radius + index
            color: Qt.rgba(0.07, 0.09, 0.18, shadow.strength)
            antialiasing: true
        }
    }
}
