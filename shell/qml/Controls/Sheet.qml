import QtQuick
import Tessivo

// A sheet that rises from the foot of the screen and goes when it is dragged down, or by a tap or a key beside it.
FocusScope {
    id: sheet

    required property ScreenItem screen
    readonly property real wanted: Math.min(screen.sheetHeight > 0 ? screen.sheetHeight : height / 2, height - 24)

    focus: true
    Keys.onEscapePressed: close()
    Keys.onBackPressed: close()

    function close() {
        rise.stop();
        sink.start();
    }

    Rectangle {
        anchors.fill: parent
        color: "black"
        opacity: 0.32 * (1 - Math.max(0, panel.y - (sheet.height - sheet.wanted)) / sheet.wanted)
    }
    MouseArea {
        anchors.fill: parent
        onClicked: sheet.close()
    }
    Rectangle {
        id: panel
        width: Math.min(parent.width, 640)
        height: sheet.wanted + 40
        anchors.horizontalCenter: parent.horizontalCenter
        y: sheet.height
        radius: 24
        color: "white"

        MouseArea { // taps on the sheet do not dismiss it; its upper part drags it down
            anchors.fill: parent
            drag.target: panel
            drag.axis: Drag.YAxis
            drag.minimumY: sheet.height - sheet.wanted
            drag.maximumY: sheet.height
            onPressed: rise.stop() // a sheet on its way stays with the finger that takes it
            onCanceled: rise.restart()
            onReleased: {
                if (panel.y > sheet.height - sheet.wanted * 0.7)
                    sheet.close();
                else
                    rise.restart();
            }
        }
        Rectangle {
            anchors.horizontalCenter: parent.horizontalCenter
            y: 8
            width: 36
            height: 5
            radius: 2
            color: Theme.line
        }
        Item {
            id: body
            width: parent.width
            y: 8
            height: sheet.wanted - y
            clip: true
            enabled: !sink.running
            ScreenContent {
                anchors.fill: parent
                screen: sheet.screen
                focus: true
            }
        }
        NumberAnimation {
            id: rise
            target: panel
            property: "y"
            to: sheet.height - sheet.wanted
            duration: Theme.calm
            easing.type: Easing.OutCubic
        }
        NumberAnimation {
            id: sink
            target: panel
            property: "y"
            to: sheet.height
            duration: Theme.calm
            easing.type: Easing.InCubic
            onFinished: sheet.screen.dismiss()
        }
    }
    Component.onCompleted: rise.start()
    onHeightChanged: {
        if (rise.running)
            rise.restart();
        else if (!sink.running)
            panel.y = height - wanted;
    }
}
