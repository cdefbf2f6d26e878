import QtQuick
import QtQuick.Templates as T
import Tessivo

// An icon with its word under it, for one thing to do with a picture.
T.AbstractButton {
    id: control

    required property ButtonItem button

    implicitHeight: 84
    activeFocusOnTab: true
    focusPolicy: Qt.StrongFocus
    onClicked: button.releaseInside()
    Keys.onReturnPressed: clicked()
    Keys.onEnterPressed: clicked()
    Accessible.role: Accessible.Button
    Accessible.name: button.accessibleName
    Accessible.onPressAction: clicked()

    contentItem: Column {
        spacing: 8
        opacity: control.pressed ? 0.5 : 1
        Rectangle {
            anchors.horizontalCenter: parent.horizontalCenter
            width: 52
            height: 52
            radius: Theme.radius
            color: Theme.field
            Icon {
                anchors.centerIn: parent
                name: control.button.image
                tint: Theme.accent
            }
        }
        Text {
            width: parent.width
            text: control.button.title
            font.pixelSize: Theme.caption
            font.weight: Font.Medium
            color: Theme.ink
            horizontalAlignment: Text.AlignHCenter
            elide: Text.ElideRight
        }
    }
    FocusRing { visible: control.visualFocus }
}
