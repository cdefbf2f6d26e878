import QtQuick
import Tessivo

// The window: a portrait screen, centred on a calm backdrop where the window is wider than tall.
Window {
    id: window

    required property WindowItem item
    required property size room // of the display that it opens on, for the window's content

    width: Math.min(390, room.width)
    height: Math.min(844, room.height)
    minimumWidth: Math.min(360, room.width)
    minimumHeight: Math.min(560, room.height)
    visible: true
    title: "Tessivo"
    color: Theme.backdrop

    Rectangle { // a sheet dims the backdrop as it dims the screen
        anchors.fill: parent
        color: "black"
        readonly property ScreenItem front: (screens.itemAt(screens.count - 1) as ScreenLoader)?.screen ?? null
        opacity: front && front.kind !== ScreenItem.Full ? 0.32 : 0
        Behavior on opacity { NumberAnimation { duration: Theme.calm } }
    }
    Item {
        id: stage

        readonly property real portraitShare: 0.62

        anchors.horizontalCenter: parent.horizontalCenter
        width: window.width > window.height ? Math.max(360, Math.round(window.height * portraitShare)) : window.width
        height: window.height
        clip: true
        LayoutMirroring.enabled: Qt.application.layoutDirection === Qt.RightToLeft
        LayoutMirroring.childrenInherit: true

        function report() {
            window.item.resize(width, height, window.Screen.devicePixelRatio);
        }
        onWidthChanged: report()
        onHeightChanged: report()

        Connections {
            target: Qt.inputMethod
            function onKeyboardRectangleChanged() {
                const keyboard = Qt.inputMethod.keyboardRectangle;
                window.item.coverFoot(keyboard.height > 0 ? Math.max(0, stage.height - keyboard.y) : 0);
            }
        }
        Repeater {
            id: screens
            model: window.item.stack
            delegate: ScreenLoader {
                required property int index
                z: index
                width: stage.width
                height: stage.height
            }
        }
    }

    Component.onCompleted: {
        Theme.window = window.item;
        stage.report();
    }
}
