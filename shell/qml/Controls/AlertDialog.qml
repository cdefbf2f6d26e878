import QtQuick
import Tessivo

// A question in the middle of the screen, which stays until it is answered.
FocusScope {
    id: dialog

    required property AlertItem alert

    focus: true
    Keys.onEscapePressed: alert.decline()
    Keys.onBackPressed: alert.decline()

    Rectangle {
        anchors.fill: parent
        color: "black"
        NumberAnimation on opacity { from: 0; to: 0.36; duration: Theme.quick }
    }
    MouseArea {
        anchors.fill: parent
        onClicked: dialog.alert.cancel()
        onWheel: event => event.accepted = true
    }
    Rectangle {
        anchors.centerIn: parent
        width: Math.min(320, parent.width - 48)
        height: texts.height + 24 + answers.height
        radius: 20
        color: "white"
        NumberAnimation on scale { from: 0.92; to: 1; duration: Theme.quick; easing.type: Easing.OutCubic }
        MouseArea { anchors.fill: parent }

        Column {
            id: texts
            x: 20
            y: 20
            width: parent.width - 40
            spacing: 8
            Text {
                width: parent.width
                text: dialog.alert.title
                font.pixelSize: Theme.body
                font.weight: Font.DemiBold
                color: Theme.ink
                wrapMode: Text.Wrap
                horizontalAlignment: Text.AlignHCenter
                textFormat: Text.PlainText
                Accessible.ignored: true
            }
            Text {
                width: parent.width
                visible: text.length > 0
                text: dialog.alert.message
                font.pixelSize: Theme.caption + 1
                color: Theme.muted
                wrapMode: Text.Wrap
                horizontalAlignment: Text.AlignHCenter
                textFormat: Text.PlainText
                Accessible.role: Accessible.StaticText
                Accessible.name: text
            }
        }
        Grid { // answers that do not fit beside each other stand one over the other
            id: answers
            property real widest: 0
            columns: widest * dialog.alert.choices.length <= width ? dialog.alert.choices.length : 1
            width: parent.width
            anchors.bottom: parent.bottom
            Repeater {
                model: dialog.alert.choices
                ChoiceButton {
                    required property alertChoice modelData
                    required property int index
                    width: answers.width / answers.columns
                    Component.onCompleted: answers.widest = Math.max(answers.widest, implicitWidth)
                    choice: modelData
                    radius: 20
                    focus: index === dialog.alert.choices.length - 1
                    onClicked: dialog.alert.choose(index)
                }
            }
        }
    }
}
