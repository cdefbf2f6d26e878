import QtQuick
import Tessivo

// What stands around the frame of a photo: what to do, what went wrong, and the ways on and out.
Item {
    id: bars

    required property ScreenItem screen
    readonly property LabelItem message: screen.control("messageLabel") as LabelItem
    readonly property ButtonItem chooseButton: screen.control("chooseButton") as ButtonItem
    readonly property int barHeight: 56

    // Three buttons share the foot.
    function room(wanted: real): real {
        return Math.min(wanted, width / 3 - 4);
    }

    anchors.fill: parent

    StyledLabel {
        label: bars.screen.control("titleLabel") as LabelItem
        anchors.horizontalCenter: parent.horizontalCenter
        height: bars.barHeight
        visible: bars.chooseButton.shown
        verticalAlignment: Text.AlignVCenter
        Accessible.role: Accessible.Heading
    }
    StyledLabel {
        label: bars.message
        anchors.centerIn: parent
        width: parent.width - 4 * Theme.margin
        visible: text.length > 0
    }
    TextButton {
        button: bars.screen.control("cancelButton") as ButtonItem
        anchors.left: parent.left
        anchors.leftMargin: 4
        width: bars.room(implicitWidth)
        anchors.verticalCenter: foot.verticalCenter
    }
    TextButton {
        button: bars.screen.control("libraryButton") as ButtonItem
        anchors.horizontalCenter: parent.horizontalCenter
        width: bars.room(implicitWidth)
        anchors.verticalCenter: foot.verticalCenter
    }
    TextButton {
        button: bars.chooseButton
        anchors.right: parent.right
        anchors.rightMargin: 4
        width: bars.room(implicitWidth)
        anchors.verticalCenter: foot.verticalCenter
    }
    Item {
        id: foot
        width: parent.width
        height: bars.barHeight
        anchors.bottom: parent.bottom
    }
}
