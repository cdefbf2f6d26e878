import QtQuick
import Tessivo

// The mark of a chosen photo.
Rectangle {
    id: mark

    required property CellItem cell
    readonly property ViewItem view: cell.control("checkmarkView")
    readonly property ImageItem sign: cell.control("checkmark") as ImageItem

    x: view.x
    y: view.y
    width: view.width
    height: view.height
    visible: view.alpha > 0
    opacity: view.alpha
    radius: view.cornerRadius
    color: view.fill.color

    SoftShadow { radius: mark.radius }
    Icon {
        anchors.centerIn: parent
        name: mark.sign.image
        tint: mark.sign.tint
        side: mark.width
    }
}
