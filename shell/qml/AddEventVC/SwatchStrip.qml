import QtQuick
import Tessivo

// A strip of round swatches that scrolls sideways: one stop of the keyboard, with arrows from swatch to swatch.
CollectionFlick {
    id: strip

    property int current: 0 // the swatch where the keyboard comes in
    property bool walked: false // the keyboard is on one of the swatches

    function walkTo(item: int) {
        const pitch = contentWidth / Math.max(1, count);
        const there = Math.max(0, Math.min(item, count - 1));
        const end = Math.max(0, contentWidth - width);
        contentX = Math.max(0, Math.min(Math.max(contentX, (there + 2) * pitch - width), (there - 1) * pitch, end));
        goTo(there);
    }

    readonly property int count: collection.itemCount
    sideways: true
    height: 56
    activeFocusOnTab: !walked
    onActiveFocusChanged: if (activeFocus) walkTo(current)
    delegate: CollectionCell {
        id: swatch

        readonly property ViewItem content: cell.control("contentView")
        readonly property ImageItem mark: cell.control("premium") as ImageItem

        transform: Scale {
            origin.x: swatch.width / 2
            xScale: strip.reversed ? -1 : 1
        }
        activeFocusOnTab: activeFocus // or Tab would start over from the top of the window
        onActiveFocusChanged: {
            strip.walked = activeFocus;
            if (activeFocus)
                strip.current = cell.item;
        }
        Keys.onLeftPressed: strip.walkTo(cell.item + (strip.reversed ? 1 : -1))
        Keys.onRightPressed: strip.walkTo(cell.item + (strip.reversed ? -1 : 1))
        Keys.onPressed: event => {
            event.accepted = event.key === Qt.Key_Home || event.key === Qt.Key_End;
            if (event.accepted)
                strip.walkTo(event.key === Qt.Key_Home ? 0 : strip.count);
        }
        Accessible.role: Accessible.RadioButton
        Accessible.checkable: true
        Accessible.checked: mark.shown

        CardPaint {
            anchors.fill: parent
            radius: swatch.content.cornerRadius
            fill: swatch.content.fill
        }
        Rectangle {
            anchors.centerIn: parent
            visible: swatch.mark.shown
            width: 26
            height: 26
            radius: 13
            color: "white"
            Icon {
                anchors.centerIn: parent
                name: swatch.mark.image
                tint: Theme.accent
                side: 18
            }
        }
        FocusRing { target: swatch; radius: 27 }
    }
}
