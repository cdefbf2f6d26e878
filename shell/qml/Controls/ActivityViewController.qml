import QtQuick
import Tessivo

// A picture and what can be done with it: at the foot of the screen, or in its middle where the screen is large.
FocusScope {
    id: sheet

    required property ScreenItem screen
    readonly property ImageItem preview: screen.control("preview") as ImageItem
    readonly property ButtonItem cancel: screen.control("cancelButton") as ButtonItem
    readonly property bool large: height > 1000

    focus: true
    Keys.onEscapePressed: cancel.releaseInside()
    Accessible.role: Accessible.Dialog
    Accessible.name: preview.accessibleName

    Rectangle {
        anchors.fill: parent
        color: "black"
        NumberAnimation on opacity { from: 0; to: 0.32; duration: Theme.quick }
    }
    MouseArea {
        anchors.fill: parent
        onClicked: sheet.cancel.releaseInside()
    }
    Rectangle {
        id: panel
        readonly property real resting: sheet.large ? (sheet.height - height) / 2 : sheet.height - height - 16
        property real sunk: 1 // how much of its way is still before it
        anchors.horizontalCenter: parent.horizontalCenter
        width: Math.min(380, parent.width - 2 * Theme.margin)
        height: column.height
        radius: 20
        color: "white"
        y: resting + sunk * (sheet.height - resting)
        NumberAnimation on sunk {
            from: 1
            to: 0
            duration: Theme.calm
            easing.type: Easing.OutCubic
        }
        MouseArea { anchors.fill: parent }

        Column {
            id: column
            width: parent.width
            topPadding: 20
            spacing: 16
            PicturePaint {
                x: Theme.margin
                width: parent.width - 2 * Theme.margin
                height: 140
                view: sheet.preview
                Accessible.role: Accessible.Graphic
                Accessible.name: sheet.preview.accessibleName
            }
            Row {
                id: acts
                x: 8
                width: parent.width - 16
                Repeater {
                    model: ["saveButton", "copyButton", "openButton", "mailButton"]
                    ShareButton {
                        required property string modelData
                        required property int index
                        width: acts.width / 4
                        button: sheet.screen.control(modelData) as ButtonItem
                        focus: index === 0
                    }
                }
            }
            Column {
                width: parent.width
                Rectangle {
                    width: parent.width
                    height: 1
                    color: Theme.field
                }
                TextButton {
                    width: parent.width
                    height: Theme.rowHeight
                    button: sheet.cancel
                }
            }
        }
    }
}
