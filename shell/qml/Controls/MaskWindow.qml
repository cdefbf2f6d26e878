import QtQuick
import Tessivo

// Shows of what it holds no more than the mask of a view leaves, while the view has one.
Item {
    id: pane

    required property ViewItem view
    readonly property alias held: held

    clip: view.masked
    x: view.masked ? view.x + view.mask.x : 0
    y: view.masked ? view.y + view.mask.y : 0
    width: view.mask.width
    height: view.mask.height

    Item {
        id: held
        x: -pane.x
        y: -pane.y
    }
}
