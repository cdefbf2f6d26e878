import QtQuick
import Tessivo

// What everything that is pressed shares: its role and name, a tint under the mouse and the finger, the ring of the
// keyboard's focus, and the menu of a button that has one.
PressArea {
    id: area

    property real radius: Theme.radius
    property real pressedTint: 0.1

    Accessible.role: Accessible.Button
    Accessible.name: button ? button.accessibleName : ""
    onMenuOpened: menu => {
        opened.active = true;
        opened.item.menu = menu;
        opened.item.open();
    }

    Rectangle {
        anchors.fill: parent
        radius: area.radius
        color: Theme.ink
        opacity: area.pressed ? area.pressedTint : area.hovered ? 0.05 : 0
    }
    Loader {
        id: opened
        x: parent.width
        y: parent.height + 4
        active: false
        source: "ContextMenu.qml"
    }
    FocusRing { radius: area.radius + 3 }
}
