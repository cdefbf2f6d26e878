import QtQuick
import Tessivo

// A row that shows a value and opens what changes it, with a chevron where it leads to a sheet.
FocusScope {
    id: row

    required property LabelItem label
    property ButtonItem chevron: null

    implicitHeight: Theme.rowHeight
    visible: label.shown
    activeFocusOnTab: true
    Keys.onReturnPressed: activate()
    Keys.onEnterPressed: activate()
    Keys.onSpacePressed: activate()
    Accessible.role: Accessible.Button
    Accessible.name: label.accessibleName
    Accessible.onPressAction: activate()

    function activate() {
        label.tap();
    }

    Rectangle {
        anchors.fill: parent
        radius: Theme.radius
        color: Theme.field
        opacity: touch.pressed ? 0.6 : 1
    }
    StyledLabel {
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
    MouseArea {
        id: touch
        anchors.fill: parent
        onClicked: row.activate()
    }
    FocusRing { target: row }
}
