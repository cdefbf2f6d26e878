import QtQuick
import QtQuick.Templates as T
import Tessivo

// One tab of the bar.
T.AbstractButton {
    id: control

    required property tabEntry entry
    required property bool selected
    readonly property color tint: selected ? entry.selectedColor : Theme.muted

    activeFocusOnTab: true
    focusPolicy: Qt.StrongFocus
    Keys.onReturnPressed: clicked()
    Keys.onEnterPressed: clicked()
    Accessible.role: Accessible.PageTab
    Accessible.name: entry.title
    Accessible.selected: selected
    Accessible.onPressAction: clicked()

    contentItem: Item {
        Column {
            anchors.centerIn: parent
            spacing: 4
            Icon {
                anchors.horizontalCenter: parent.horizontalCenter
                name: control.selected ? control.entry.selectedImage : control.entry.image
                tint: control.tint
                side: 26
            }
            Text {
                anchors.horizontalCenter: parent.horizontalCenter
                text: control.entry.title
                font.pixelSize: 12
                font.weight: control.selected ? Font.DemiBold : Font.Medium
                color: control.tint
            }
        }
    }
    FocusRing { visible: control.visualFocus; anchors.margins: 4 }
}
