import QtQuick
import Tessivo

// The drawing of one screen of the stack, where the program says it stands. A screen that is covered, or on its way,
// takes nothing.
ScreenPane {
    id: pane

    required property ScreenItem screen

    enabled: screen.takesActs && !underMenu
    modal: screen.kind !== ScreenItem.Full
    title: screen.title
    Accessible.role: Accessible.Pane
    onCovered: place => screen.place = place

    Loader {
        width: parent.width
        height: parent.height
        x: pane.screen.kind === ScreenItem.Full ? pane.screen.view.x : 0
        focus: true
        Component.onCompleted: {
            const alert = pane.screen as AlertItem;
            if (pane.screen.kind === ScreenItem.Sheet)
                setSource("Sheet.qml", { screen: pane.screen });
            else if (pane.screen.kind === ScreenItem.Alert)
                setSource("AlertDialog.qml", { alert: alert });
            else if (alert)
                setSource("ActionSheet.qml", { alert: alert });
            else
                setSource("ScreenContent.qml", { screen: pane.screen });
            pane.begin(pane.screen.place);
        }
    }
}
