import QtQuick
import Tessivo

// A panel that rises over a dimmed screen: to its foot, or to its middle where the screen is large. Whoever uses it
// decides what Escape and a tap beside it do.
FocusScope {
    id: sheet

    default property alias rows: column.data
    property alias topPadding: column.topPadding
    property alias spacing: column.spacing

    signal dismissed // by Escape or Back
    signal tappedBeside

    focus: true
    Keys.onEscapePressed: dismissed()
    Keys.onBackPressed: dismissed()

    Rectangle {
        anchors.fill: parent
        color: "black"
        NumberAnimation on opacity { from: 0; to: 0.32; duration: Theme.quick }
    }
    MouseArea {
        anchors.fill: parent
        onClicked: sheet.tappedBeside()
        onWheel: event => event.accepted = true
    }
    Rectangle {
        readonly property real resting: Theme.large ? (sheet.height - height) / 2 : sheet.height - height - 16
        property real sunk: 1 // the share of its way that is left, so that it ends where it rests whatever its size
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
        }
    }
}
