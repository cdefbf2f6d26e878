import QtQuick
import Tessivo

// The menu that a long press opens beside the finger, and a button under itself. It lies over the whole screen, and
// takes the keyboard until it closes.
Item {
    id: place

    property MenuItem menu
    readonly property bool opened: overlay.visible

    function open() {
        let pane = place;
        while (pane.parent && !(pane instanceof ScreenPane))
            pane = pane.parent;
        const window = pane instanceof ScreenPane ? pane.parent : pane;
        overlay.opener = place.Window.activeFocusItem;
        overlay.pane = pane as ScreenPane;
        overlay.parent = window;
        overlay.at = window.mapFromItem(place, 0, 0);
        overlay.visible = true;
        if (overlay.pane)
            overlay.pane.underMenu = true;
        overlay.enabled = true;
        rows.focusFirst();
        appear.start();
    }

    function close() {
        if (!overlay.enabled)
            return;
        overlay.enabled = false;
        overlay.visible = false;
        if (overlay.pane)
            overlay.pane.underMenu = false;
        if (overlay.opener)
            overlay.opener.forceActiveFocus(Qt.PopupFocusReason);
    }

    ScreenPane {
        id: overlay

        property Item opener // had the keyboard, and gets it back
        property ScreenPane pane // the screen that asked for the menu
        property point at

        anchors.fill: parent
        z: 2000
        enabled: false
        visible: false
        modal: true
        title: qsTr("Menu")
        Accessible.role: Accessible.PopupMenu
        Keys.onEscapePressed: place.close()
        Keys.onBackPressed: place.close()
        onWidthChanged: place.close()
        onHeightChanged: place.close()

        Rectangle {
            anchors.fill: parent
            color: Qt.rgba(0, 0, 0, 0.2)
        }
        MouseArea {
            anchors.fill: parent
            acceptedButtons: Qt.LeftButton | Qt.RightButton
            onPressed: place.close()
            onWheel: event => event.accepted = true
        }
        Rectangle {
            id: panel

            readonly property real edge: 12 // kept free at the window's sides

            x: Math.max(edge, Math.min(overlay.at.x, overlay.width - width - edge))
            y: Math.max(edge, Math.min(overlay.at.y, overlay.height - height - edge))
            width: Math.min(320, overlay.width - 2 * edge)
            height: rows.height + 8
            radius: Theme.radius
            color: "white"
            transformOrigin: Item.Top
            SoftShadow { radius: Theme.radius }
            MouseArea { anchors.fill: parent } // a tap between two rows does not close the menu

            Column {
                id: rows

                function focusFirst() {
                    if (back.visible || entries.count === 0)
                        back.forceActiveFocus(Qt.PopupFocusReason);
                    else
                        entries.itemAt(0).forceActiveFocus(Qt.PopupFocusReason);
                }

                y: 4
                width: parent.width
                ContextMenuRow {
                    id: back
                    visible: place.menu?.nested ?? false
                    onVisibleChanged: rows.forceLayout()
                    width: parent.width
                    symbol: "chevron.backward"
                    onClicked: place.menu.goBack()
                }
                Repeater {
                    id: entries
                    model: place.menu?.entries ?? []
                    onItemAdded: rows.forceLayout() // a quick second tap finds its row where it will stay
                    ContextMenuRow {
                        required property menuEntry modelData
                        required property int index
                        width: parent.width
                        title: modelData.title
                        symbol: modelData.symbol
                        opensMore: modelData.opensMore
                        onClicked: place.menu.choose(index)
                    }
                }
            }
        }
        ParallelAnimation {
            id: appear
            NumberAnimation { target: overlay; property: "opacity"; from: 0; to: 1; duration: Theme.quick }
            NumberAnimation {
                target: panel
                property: "scale"
                from: 0.9
                to: 1
                duration: Theme.quick
                easing.type: Easing.OutCubic
            }
        }
    }
    Connections {
        target: place.menu
        function onClosed() { place.close(); }
        function onEntriesChanged() { Qt.callLater(rows.focusFirst); }
    }
    Component.onDestruction: place.close()
}
