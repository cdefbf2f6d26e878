import QtQuick
import Tessivo

// One list of cards under its heading.
FocusScope {
    id: list

    required property ScreenItem screen
    readonly property CollectionItem collection: screen.control("collection") as CollectionItem
    readonly property LabelItem titleLabel: screen.control("titleLabel") as LabelItem
    readonly property LabelItem mainlabel: screen.control("mainlabel") as LabelItem
    readonly property LabelItem hintLabel: screen.control("hintLabel") as LabelItem
    readonly property ButtonItem settingButton: screen.control("settingButton") as ButtonItem

    focus: true

    Rectangle {
        anchors.fill: parent
        color: list.screen.view.fill.color
    }
    CollectionFlick {
        id: cards
        anchors.top: header.bottom
        anchors.bottom: parent.bottom
        width: parent.width
        focus: true
        collection: list.collection
        bottomMargin: collection.footInset
        delegate: EventCell {}
    }
    Item {
        id: header
        width: parent.width
        height: Math.max(64, heading.implicitHeight + 8)
        StyledLabel {
            id: heading
            label: list.titleLabel
            anchors.left: parent.left
            anchors.leftMargin: 20
            anchors.verticalCenter: parent.verticalCenter
            Accessible.role: Accessible.Heading
        }
        IconButton {
            button: list.settingButton
            anchors.right: parent.right
            anchors.rightMargin: 12
            anchors.verticalCenter: parent.verticalCenter
        }
        Rectangle {
            anchors.bottom: parent.bottom
            width: parent.width
            height: 1
            color: Theme.line
            opacity: Math.min(1, Math.max(0, cards.contentY / 24))
        }
    }
    Column {
        anchors.centerIn: parent
        width: parent.width - 64
        spacing: 16
        visible: list.mainlabel.shown
        Icon {
            anchors.horizontalCenter: parent.horizontalCenter
            name: "emptyList"
            tint: Theme.line
            side: 88
        }
        StyledLabel {
            label: list.mainlabel
            width: parent.width
            lineHeight: 1.2
        }
        StyledLabel {
            label: list.hintLabel
            width: parent.width
            lineHeight: 1.2
        }
    }
}
