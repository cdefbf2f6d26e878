import QtQuick
import Tessivo

// A choice of things to do: at the foot of the screen, or in its middle where the screen is large.
FocusScope {
    id: sheet

    required property AlertItem alert
    readonly property bool large: height > 1000

    focus: true
    Keys.onEscapePressed: alert.cancel()
    Accessible.role: Accessible.Dialog
    Accessible.name: alert.title

    Rectangle {
        anchors.fill: parent
        color: "black"
        NumberAnimation on opacity { from: 0; to: 0.32; duration: Theme.quick }
    }
    MouseArea {
        anchors.fill: parent
        onClicked: sheet.alert.cancel()
    }
    Rectangle {
        id: panel
        readonly property real resting: sheet.large ? (sheet.height - height) / 2 : sheet.height - height - 16
        anchors.horizontalCenter: parent.horizontalCenter
        width: Math.min(380, parent.width - 2 * Theme.margin)
        height: column.height
        radius: 20
        color: "white"
        // A share of the way, so that it ends where the sheet rests whatever its size becomes meanwhile.
        property real risen
        y: sheet.height + (resting - sheet.height) * risen
        NumberAnimation on risen {
            from: 0
            to: 1
            duration: Theme.calm
            easing.type: Easing.OutCubic
        }
        MouseArea { anchors.fill: parent }

        Column {
            id: column
            width: parent.width
            topPadding: 16
            Text {
                width: parent.width
                text: sheet.alert.title
                font.pixelSize: Theme.caption + 1
                font.weight: Font.DemiBold
                color: Theme.muted
                leftPadding: Theme.margin
                rightPadding: Theme.margin
                wrapMode: Text.Wrap
                horizontalAlignment: Text.AlignHCenter
            }
            Text {
                width: parent.width
                visible: text.length > 0
                text: sheet.alert.message
                font.pixelSize: Theme.caption
                color: Theme.muted
                wrapMode: Text.Wrap
                horizontalAlignment: Text.AlignHCenter
            }
            Item { width: 1; height: 12 }
            Repeater {
                model: sheet.alert.choices
                Column {
                    id: line
                    required property alertChoice modelData
                    required property int index
                    width: column.width
                    Rectangle {
                        width: parent.width
                        height: 1
                        color: Theme.field
                    }
                    ChoiceButton {
                        width: parent.width
                        choice: line.modelData
                        focus: line.index === 0
                        onClicked: sheet.alert.choose(line.index)
                    }
                }
            }
        }
    }
}
