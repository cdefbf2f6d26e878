import QtQuick
import Tessivo

// One tab of the bar.
ButtonArea {
    id: control

    required property tabEntry entry
    required property bool selected
    readonly property color tint: selected ? entry.selectedColor : Theme.muted

    pressedTint: 0.06
    Accessible.role: Accessible.PageTab
    Accessible.name: entry.title
    Accessible.selectable: true
    Accessible.selected: selected

    Column {
        anchors.centerIn: parent
        spacing: 4
        Icon {
            anchors.horizontalCenter: parent.horizontalCenter
            name: control.selected ? control.entry.selectedImage : control.entry.image
            tint: control.tint
            side: Theme.large ? 30 : 26
        }
        Text {
            anchors.horizontalCenter: parent.horizontalCenter
            text: control.entry.title
            font.pixelSize: Theme.type(Theme.large ? 16 : 12)
            font.weight: Font.DemiBold // as the cards' titles: each weight more is a font more to load at the start
            color: control.tint
        }
    }
}
