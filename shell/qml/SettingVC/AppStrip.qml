import QtQuick
import Tessivo

// Other programs, in two rows that scroll sideways.
SettingList {
    id: strip

    signal reached

    sideways: true
    rightMargin: 8
    delegate: CollectionCell {
        id: app

        readonly property ImageItem image: cell.control("image") as ImageItem

        transform: Scale {
            origin.x: app.width / 2
            xScale: strip.reversed ? -1 : 1
        }
        onActiveFocusChanged: {
            if (!activeFocus)
                return;
            strip.reached();
            strip.show(app);
        }
        Keys.onRightPressed: strip.goTo(cell.item + (strip.reversed ? -2 : 2))
        Keys.onLeftPressed: strip.goTo(cell.item + (strip.reversed ? 2 : -2))
        Keys.onDownPressed: event => event.accepted = strip.goWithin(cell.item, 1)
        Keys.onUpPressed: event => event.accepted = strip.goWithin(cell.item, -1)

        Rectangle {
            id: ground
            anchors.fill: parent
            anchors.rightMargin: 8
            anchors.bottomMargin: 8
            radius: app.image.cornerRadius
            color: app.cell.highlighted ? Qt.darker("white", 1.12) : app.cell.hovered ? Qt.darker("white", 1.03) : "white"
            Behavior on color { ColorAnimation { duration: Theme.quick } }
            Icon {
                id: tile
                anchors.left: parent.left
                anchors.leftMargin: 10
                anchors.verticalCenter: parent.verticalCenter
                name: app.image.image
                side: Math.min(46, parent.height - 12)
            }
            CardLabel {
                label: app.cell.control("text") as LabelItem
                anchors.left: tile.right
                anchors.leftMargin: 10
                anchors.right: parent.right
                anchors.rightMargin: 8
                anchors.verticalCenter: parent.verticalCenter
                spacing: 0
            }
        }
        FocusRing { target: ground; visible: app.activeFocus && Theme.keysInUse; radius: ground.radius + 3; anchors.margins: 2 }
    }

    // Scrolls until the whole of an item is seen, and a piece of the next: the keyboard goes on to it.
    function show(app: Item) {
        const peek = 24;
        const end = Math.max(0, contentWidth + rightMargin - width);
        contentX = Math.max(0, Math.min(Math.max(contentX, app.x + app.width + peek - width), app.x - peek, end));
    }
    // To the other item of the column. Says whether there is one.
    function goWithin(item: int, by: int): bool {
        if ((item % 2 === 0) !== (by > 0))
            return false;
        goTo(item + by);
        return true;
    }
}
