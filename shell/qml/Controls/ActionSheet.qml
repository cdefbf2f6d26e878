import QtQuick
import Tessivo

// A choice of things to do.
RisingPanel {
    id: sheet

    required property AlertItem alert

    topPadding: 16
    onDismissed: alert.decline()
    onTappedBeside: alert.cancel()

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
        textFormat: Text.PlainText
    }
    Text {
        width: parent.width
        visible: text.length > 0
        text: sheet.alert.message
        font.pixelSize: Theme.caption
        color: Theme.muted
        leftPadding: Theme.margin
        rightPadding: Theme.margin
        wrapMode: Text.Wrap
        horizontalAlignment: Text.AlignHCenter
        textFormat: Text.PlainText
        Accessible.role: Accessible.StaticText
        Accessible.name: text
        Accessible.ignored: !visible
    }
    Item { width: 1; height: 12 }
    Repeater {
        model: sheet.alert.choices
        Column {
            id: line
            required property alertChoice modelData
            required property int index
            width: parent.width
            Rectangle {
                width: parent.width
                height: 1
                color: Theme.field
            }
            ChoiceButton {
                width: parent.width
                radius: 20
                choice: line.modelData
                focus: line.index === 0
                onClicked: sheet.alert.choose(line.index)
            }
        }
    }
}
