import QtQuick
import Tessivo

// A photo as large as the screen lets it be. It goes at a tap or a key.
FocusScope {
    id: preview

    required property ScreenItem screen

    focus: true
    Keys.onEscapePressed: screen.dismiss()
    Keys.onBackPressed: screen.dismiss()

    Rectangle {
        anchors.fill: parent
        color: "black"
    }
    PicturePaint {
        anchors.fill: parent
        view: preview.screen.control("imageView") as ImageItem
        NumberAnimation on scale { from: 0.9; to: 1; duration: Theme.calm; easing.type: Easing.OutCubic }
        NumberAnimation on opacity { from: 0; to: 1; duration: Theme.quick }
    }
    PressArea {
        anchors.fill: parent
        focus: true
        onClicked: preview.screen.dismiss()
        Accessible.role: Accessible.Button
        Accessible.name: qsTr("Close")
    }
}
