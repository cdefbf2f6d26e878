import QtQuick
import Tessivo

// The two lists, the bar that chooses between them, and the floating button that adds an event.
FocusScope {
    id: tabs

    required property TabsItem screen
    readonly property ViewItem bar: screen.control("tabBar")
    readonly property ButtonItem addButton: screen.control("addButton") as ButtonItem

    focus: true

    Repeater {
        model: tabs.screen.selected ? [tabs.screen.selected] : []
        MainViewController {
            required property ScreenItem modelData
            screen: modelData
            width: tabs.width
            height: tabs.height
        }
    }
    Rectangle {
        y: tabs.bar.y
        width: parent.width
        height: tabs.height - y
        color: tabs.bar.fill.color
        Rectangle {
            width: parent.width
            height: 1
            color: Theme.field
        }
        Row {
            anchors.fill: parent
            Repeater {
                model: tabs.screen.entries
                TabButton {
                    required property tabEntry modelData
                    required property int index
                    entry: modelData
                    selected: index === tabs.screen.selectedIndex
                    width: tabs.width / 2
                    height: parent.height
                    onClicked: tabs.screen.select(index)
                }
            }
        }
    }
    ButtonArea {
        id: add
        button: tabs.addButton
        x: tabs.addButton.x
        y: tabs.addButton.y
        width: tabs.addButton.width
        height: tabs.addButton.height
        radius: width / 2
        scale: pressed ? 0.94 : 1
        Behavior on scale { NumberAnimation { duration: Theme.quick } }

        SoftShadow { radius: add.radius; strength: 0.035 }
        Icon {
            name: tabs.addButton.image
            side: add.width
            tint: add.hovered ? Qt.darker(Theme.accent, 1.08) : Theme.accent
        }
    }
}
