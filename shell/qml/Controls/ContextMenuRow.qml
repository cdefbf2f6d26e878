import QtQuick
import QtQuick.Templates as T
import Tessivo

// One line of a context menu.
T.AbstractButton {
    id: row

    property string title
    property string symbol
    property bool opensMore: false

    implicitHeight: Theme.touch + 4
    activeFocusOnTab: true
    focusPolicy: Qt.StrongFocus
    Keys.onReturnPressed: clicked()
    Keys.onEnterPressed: clicked()
    Keys.onUpPressed: nextItemInFocusChain(false).forceActiveFocus(Qt.BacktabFocusReason)
    Keys.onDownPressed: nextItemInFocusChain(true).forceActiveFocus(Qt.TabFocusReason)
    Accessible.role: Accessible.MenuItem
    Accessible.name: title.length > 0 ? title : qsTr("Back")
    Accessible.onPressAction: clicked()

    contentItem: Item {
        opacity: row.pressed ? 0.5 : 1
        Icon {
            id: icon
            anchors.left: parent.left
            anchors.leftMargin: Theme.margin
            anchors.verticalCenter: parent.verticalCenter
            name: row.symbol
            side: 22
            mirror: row.title.length === 0 && Qt.application.layoutDirection === Qt.RightToLeft
        }
        Text {
            anchors.left: icon.right
            anchors.right: more.left
            anchors.margins: 12
            anchors.verticalCenter: parent.verticalCenter
            text: row.title
            font.pixelSize: Theme.body
            color: Theme.ink
            horizontalAlignment: Text.AlignLeft
            elide: Text.ElideRight
        }
        Icon {
            id: more
            anchors.right: parent.right
            anchors.rightMargin: Theme.margin
            anchors.verticalCenter: parent.verticalCenter
            visible: row.opensMore
            name: "chevronNext"
            tint: Theme.muted
            side: 18
            mirror: Qt.application.layoutDirection === Qt.RightToLeft
        }
    }
    FocusRing { visible: row.visualFocus; anchors.margins: 4; radius: 12 }
}
