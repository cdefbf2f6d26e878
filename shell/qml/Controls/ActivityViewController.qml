import QtQuick
import Tessivo

// A picture or a text, and what can be done with it.
RisingPanel {
    id: sheet

    required property ScreenItem screen
    readonly property ImageItem preview: screen.control("preview") as ImageItem
    readonly property LabelItem text: screen.control("textPreview") as LabelItem
    readonly property ButtonItem cancel: screen.control("cancelButton") as ButtonItem

    topPadding: 20
    spacing: 16
    onDismissed: cancel.releaseInside()
    onTappedBeside: cancel.releaseInside()

    PicturePaint {
        x: Theme.margin
        width: parent.width - 2 * Theme.margin
        height: 140
        visible: sheet.preview.shown
        view: sheet.preview
        Accessible.role: Accessible.Graphic
        Accessible.name: sheet.preview.accessibleName
    }
    Text {
        x: Theme.margin
        width: parent.width - 2 * Theme.margin
        visible: sheet.text.shown
        text: sheet.text.text
        font.pixelSize: Theme.body
        color: Theme.ink
        wrapMode: Text.Wrap
        horizontalAlignment: Text.AlignHCenter
        Accessible.role: Accessible.StaticText
        Accessible.name: text
    }
    Row {
        id: acts
        readonly property var offered: ["saveButton", "copyButton", "openButton", "mailButton", "messageButton"]
            .map(name => sheet.screen.control(name) as ButtonItem).filter(button => button.shown)
        x: 8
        width: parent.width - 16
        Repeater {
            model: acts.offered
            ShareButton {
                required property ButtonItem modelData
                required property int index
                width: acts.width / acts.offered.length
                button: modelData
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
