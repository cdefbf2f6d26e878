import QtQuick
import Tessivo

// A picture and what can be done with it.
RisingPanel {
    id: sheet

    required property ScreenItem screen
    readonly property ImageItem preview: screen.control("preview") as ImageItem
    readonly property ButtonItem cancel: screen.control("cancelButton") as ButtonItem

    topPadding: 20
    spacing: 16
    onDismissed: cancel.releaseInside()

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
