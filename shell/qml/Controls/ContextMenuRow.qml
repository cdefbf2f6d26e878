import QtQuick
import Tessivo

// One line of a context menu.
ButtonArea {
    id: row

    property string title
    property string symbol
    property bool opensMore: false

    function go(forward: bool) {
        nextItemInFocusChain(forward).forceActiveFocus(forward ? Qt.TabFocusReason : Qt.BacktabFocusReason);
    }

    implicitHeight: Math.max(Theme.touch, caption.implicitHeight + 16) + 4
    radius: 12
    Keys.onUpPressed: go(false)
    Keys.onDownPressed: go(true)
    Accessible.role: Accessible.MenuItem
    Accessible.name: title.length > 0 ? title : qsTr("Back")

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
        id: caption
        anchors.left: icon.right
        anchors.right: more.visible ? more.left : parent.right
        anchors.margins: 12
        anchors.verticalCenter: parent.verticalCenter
        text: row.title
        font.pixelSize: Theme.body
        color: Theme.ink
        horizontalAlignment: Text.AlignLeft
        wrapMode: Text.Wrap
        maximumLineCount: 2
        elide: Text.ElideRight
        textFormat: Text.PlainText
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
