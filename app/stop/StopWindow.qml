pragma ComponentBehavior: Bound

import QtQuick

// Says why Tessivo has stopped, where the events lie, and what can be done. Uses nothing of the program's own
// drawing, which may be what failed.
Rectangle {
    id: page

    required property QtObject stop

    implicitWidth: 480
    implicitHeight: column.implicitHeight + 48
    color: "#F4F5F8"
    LayoutMirroring.enabled: Qt.application.layoutDirection === Qt.RightToLeft
    LayoutMirroring.childrenInherit: true
    Accessible.role: Accessible.AlertMessage
    Accessible.name: stop.heading + ". " + stop.cause + " " + stop.advice
    Keys.onEscapePressed: page.stop.act(page.stop.acts.length - 1)

    Flickable {
        anchors.fill: parent
        contentHeight: column.implicitHeight + 48
        boundsBehavior: Flickable.StopAtBounds
        clip: true

        Column {
            id: column
            x: 24
            y: 24
            width: parent.width - 48
            spacing: 12

            StopText {
                text: page.stop.heading
                font.pixelSize: 22
                font.weight: Font.DemiBold
            }
            StopText { text: page.stop.advice }
            StopText {
                text: page.stop.cause
                color: "#565C69"
                font.pixelSize: 13
            }
            StopText {
                text: page.stop.file
                color: "#565C69"
                font.pixelSize: 13
            }
            Item { width: 1; height: 4 }
            Repeater {
                model: page.stop.acts
                StopButton {
                    required property string modelData
                    required property int index
                    width: column.width
                    text: modelData
                    main: index === 0
                    focus: index === 0
                    onPressed: page.stop.act(index)
                }
            }
        }
    }
}
