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
        sourceComponent: {
            switch (loader.screen.kind) {
            case ScreenItem.Sheet: return sheet;
            case ScreenItem.Alert: return alert;
            case ScreenItem.ActionSheet: return loader.screen instanceof AlertItem ? actionSheet : full;
            default: return full;
            }
        }
    }

    Component {
        id: full
        ScreenContent { screen: loader.screen }
    }
    Component {
        id: sheet
        Sheet { screen: loader.screen }
    }
    Component {
        id: alert
        AlertDialog { alert: loader.screen as AlertItem }
    }
    Component {
        id: actionSheet
        ActionSheet { alert: loader.screen as AlertItem }
    }
}
