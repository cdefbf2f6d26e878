import QtQuick
import Tessivo

// The window: a portrait screen, centred on a calm backdrop where the window is wider than tall.
Window {
    id: window

    required property WindowItem item

    width: 390
    height: 844
    minimumWidth: 360
    minimumHeight: 560
    visible: true
    title: "Tessivo"
    color: Theme.backdrop

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
