import QtQuick

// Shows which control the keyboard is on.
Rectangle {
    property Item target: parent

    anchors.fill: target
    anchors.margins: -3
    visible: target.activeFocus
    color: "transparent"
    border.color: Theme.accent
    border.width: 2
    radius: Theme.radius
}
