import QtQuick

// Shows which control the keyboard is on, once keys are used.
Rectangle {
    property Item target: parent

    anchors.fill: target
    anchors.margins: -3
    z: 1
    visible: target.activeFocus && Theme.keysInUse
    color: "transparent"
    border.color: Theme.accent
    border.width: 2
    radius: Theme.radius
}
