import QtQuick
import Tessivo

// A strip of round swatches that scrolls sideways.
CollectionFlick {
    id: strip

    sideways: true
    height: 56
    delegate: FocusScope {
        id: swatch

        required property CellItem cell
        readonly property ViewItem content: cell.control("contentView")
        readonly property ImageItem mark: cell.control("premium") as ImageItem

        x: cell.x
        y: cell.y
        width: cell.width
        height: cell.height
        transform: Scale {
            origin.x: swatch.width / 2
            xScale: strip.reversed ? -1 : 1
        }
        activeFocusOnTab: true
        Keys.onReturnPressed: strip.collection.tapItem(cell.item)
        Keys.onSpacePressed: strip.collection.tapItem(cell.item)
        Accessible.role: Accessible.RadioButton
        Accessible.name: cell.accessibleName
        Accessible.checked: mark.shown
        Accessible.onPressAction: strip.collection.tapItem(cell.item)

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
