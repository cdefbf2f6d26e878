import QtQuick
import QtQuick.Templates as T
import Tessivo

// A row that opens another screen: its whole width is one button, with a chevron at its end.
T.AbstractButton {
    id: row

    required property ButtonItem button

    implicitHeight: Theme.rowHeight
    visible: button.shown
    enabled: button.enabled
    activeFocusOnTab: true
    focusPolicy: Qt.StrongFocus
    onPressed: button.press()
    onClicked: button.releaseInside()
    Keys.onReturnPressed: clicked()
    Keys.onEnterPressed: clicked()
    Accessible.role: Accessible.Button
    Accessible.name: button.accessibleName
    Accessible.onPressAction: clicked()

    background: Rectangle {
        radius: Theme.radius
        color: Theme.field
        opacity: row.pressed ? 0.6 : 1
    }
    contentItem: Item {
        Text {
            anchors.verticalCenter: parent.verticalCenter
            anchors.left: parent.left
            anchors.right: chevron.left
            anchors.leftMargin: Theme.margin
            anchors.rightMargin: 8
            text: row.button.title
            color: row.button.titleColor
            font.pixelSize: row.button.size
            font.weight: row.button.weight
            horizontalAlignment: Text.AlignLeft
            elide: Text.ElideRight
            textFormat: Text.PlainText
        }
        Icon {
            id: chevron
            anchors.verticalCenter: parent.verticalCenter
            anchors.right: parent.right
            anchors.rightMargin: Theme.margin
            name: row.button.image
            tint: row.button.tint
            side: 18
            mirror: Qt.application.layoutDirection === Qt.RightToLeft
        }
    }
    FocusRing { visible: row.visualFocus }
}
