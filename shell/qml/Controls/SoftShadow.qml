import QtQuick

// A soft shadow under a rounded rectangle: one picture, stretched between its corners.
BorderImage {
    id: shadow

    property real radius: 16
    property real strength: 0.022
    readonly property int reach: 12
    readonly property int corner: reach + Math.floor(radius)

    anchors.fill: parent
    anchors.margins: -reach
    z: -1
    // Drawn for the window's pixels: a picture of the provider counts as one at their ratio, borders are in points.
    source: "image://shadow/" + [radius, strength, Screen.devicePixelRatio].join("/")
    border { left: corner; top: corner; right: corner; bottom: corner }
}
