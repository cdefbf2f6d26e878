import QtQuick
import Tessivo

// A collection that scrolls: draws the cells that the program says are on the screen, where it says they lie.
Flickable {
    id: flick

    required property CollectionItem collection
    required property Component delegate
    property bool sideways: false
    readonly property bool reversed: sideways && Qt.application.layoutDirection === Qt.RightToLeft

    contentWidth: collection.contentWidth
    contentHeight: collection.contentHeight
    flickableDirection: sideways ? Flickable.HorizontalFlick : Flickable.VerticalFlick
    boundsBehavior: Flickable.DragAndOvershootBounds
    clip: true
    Accessible.role: Accessible.List

    function report() {
        collection.resize(width, height);
        collection.scrolledTo(reversed ? contentWidth - contentX - width : contentX, contentY);
    }
    onWidthChanged: report()
    onHeightChanged: report()
    onContentXChanged: report()
    onContentYChanged: report()
    onContentWidthChanged: if (reversed && !moving) contentX = contentWidth - width
    Component.onCompleted: report()

    Repeater {
        model: flick.collection.cells
        delegate: flick.delegate
    }
    Connections {
        target: flick.collection
        function onScrollRequested(x: real, y: real) {
            flick.contentX = flick.reversed ? flick.contentWidth - x - flick.width : x;
            flick.contentY = y;
        }
    }
}
