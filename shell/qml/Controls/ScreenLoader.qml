import QtQuick
import Tessivo

// The drawing of one screen of the stack, where the program says it stands.
Item {
    id: loader

    required property ScreenItem screen

    Loader {
        width: parent.width
        height: parent.height
        x: loader.screen.kind === ScreenItem.Full ? loader.screen.view.x : 0
        focus: true
        Component.onCompleted: {
            const alert = loader.screen as AlertItem;
            if (loader.screen.kind === ScreenItem.Sheet)
                setSource("Sheet.qml", { screen: loader.screen });
            else if (loader.screen.kind === ScreenItem.Alert)
                setSource("AlertDialog.qml", { alert: alert });
            else if (alert)
                setSource("ActionSheet.qml", { alert: alert });
            else
                setSource("ScreenContent.qml", { screen: loader.screen });
        }
    }
}
