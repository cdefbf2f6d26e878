import QtQuick

// Tells how far down a list is scrolled, while it moves and for a moment after.
Rectangle {
    required property Flickable list
    readonly property real way: list.contentHeight + list.topMargin + list.bottomMargin - list.height
    readonly property real track: list.height - list.topMargin - list.bottomMargin - 8

    parent: list // does not scroll with the content
    anchors.right: parent.right
    anchors.rightMargin: 3
    y: list.topMargin + 4 + (track - height) * Math.min(1, Math.max(0, (list.contentY + list.topMargin) / way))
    width: 4
    height: Math.max(36, track * Math.min(1, track / (way + list.height)))
    radius: 2
    color: Theme.ink
    opacity: list.movingVertically ? 0.4 : 0
    visible: way > 0
    Behavior on opacity {
        SequentialAnimation {
            PauseAnimation { duration: list.movingVertically ? 0 : 600 }
            NumberAnimation { duration: Theme.calm }
        }
    }
}
