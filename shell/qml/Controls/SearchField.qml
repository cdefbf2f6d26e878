import QtQuick
import Tessivo

// A field to search with: a glass before the text and, once there is one, the button that clears it.
EditableField {
    id: search

    required property ButtonItem clearButton

    implicitHeight: Math.max(Theme.touch, Theme.body + 20)
    nearRoom: 40
    farRoom: Theme.touch
    inputMethodHints: Qt.ImhNoAutoUppercase
    enterKey: Qt.EnterKeySearch

    Icon {
        anchors.left: parent.left
        anchors.leftMargin: 12
        anchors.verticalCenter: parent.verticalCenter
        name: "magnifyingglass"
        tint: Theme.muted
        side: 20
    }
    IconButton {
        button: search.clearButton
        anchors.right: parent.right
        side: 20
        focusOnTouch: false // a touch leaves the keyboard with the text
    }
}
