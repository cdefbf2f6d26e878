import QtQuick
import Tessivo

// A row that shows a value and opens what changes it, with a chevron where it leads to a sheet.
ButtonArea {
    id: row

    required property LabelItem label
    property LabelItem heading: null // the name of the value, for screen readers
    property ButtonItem chevron: null

    implicitHeight: Math.max(Theme.rowHeight, caption.implicitHeight + 20)
    visible: label.shown
    onClicked: label.tap()
    Accessible.name: heading ? heading.text + ", " + label.accessibleName : label.accessibleName

    Rectangle {
        anchors.fill: parent
        z: -1
        radius: row.radius
        color: Theme.field
    }
    StyledLabel {
        id: caption
        label: row.label
        anchors.verticalCenter: parent.verticalCenter
        anchors.left: parent.left
        anchors.right: icon.visible ? icon.left : parent.right
        anchors.leftMargin: Theme.margin
        anchors.rightMargin: Theme.margin
        Accessible.ignored: true
    }
    Icon {
        id: icon
        anchors.verticalCenter: parent.verticalCenter
        anchors.right: parent.right
        anchors.rightMargin: Theme.margin
        visible: row.chevron !== null
        name: row.chevron ? row.chevron.image : ""
        tint: row.chevron ? row.chevron.tint : Theme.ink
        side: 18
        mirror: Qt.application.layoutDirection === Qt.RightToLeft
    }
}
