import QtQuick
import Tessivo

// A slide of the tour: its picture over its sentence.
Item {
    id: slide

    required property CellItem cell
    property bool turned: false // by a strip that runs from the right
    readonly property ViewItem ground: cell.control("viewText")
    readonly property ImageItem picture: cell.control("imageView") as ImageItem

    x: cell.x
    y: cell.y
    width: cell.width
    height: cell.height
    transform: Scale {
        origin.x: slide.width / 2
        xScale: slide.turned ? -1 : 1
    }

    Item {
        width: parent.width
        anchors.top: parent.top
        anchors.bottom: words.top
        Icon {
            anchors.centerIn: parent
            name: slide.picture.image
            side: Math.max(0, Math.min(parent.width - 48, parent.height - 32, 560))
            mirror: Qt.application.layoutDirection === Qt.RightToLeft
        }
    }
    Rectangle {
        id: words
        anchors.bottom: parent.bottom
        anchors.bottomMargin: 12
        anchors.horizontalCenter: parent.horizontalCenter
        width: Math.min(parent.width - 48, 560)
        height: sentence.height + 48
        radius: slide.ground.cornerRadius
        color: slide.ground.fill.color
        SoftShadow { radius: words.radius }
        StyledLabel {
            id: sentence
            label: slide.cell.control("titleLabel") as LabelItem
            anchors.centerIn: parent
            width: parent.width - 40
        }
    }
}
