import QtQuick

// A resource icon in a colour.
Image {
    id: icon

    property string name
    property color tint: Theme.ink
    property real side: 24
    property real ratio: 1 // width to height

    width: side * ratio
    height: side
    visible: name.length > 0
    source: name.length > 0 ? "image://icon/" + encodeURIComponent(name) + "/" + tint : ""
    sourceSize: Qt.size(width * Screen.devicePixelRatio, height * Screen.devicePixelRatio)
    smooth: true
    Accessible.ignored: true
}
