import QtQuick
import Tessivo

// A collection that scrolls: draws the cells that the program says are on the screen, where it says they lie.
Flickable {
    id: flick

    required property CollectionItem collection
    required property Component delegate
    property bool sideways: false
    property real sideRoom: 0 // what the items keep away from the sides
    readonly property bool reversed: sideways && Qt.application.layoutDirection === Qt.RightToLeft

    contentWidth: collection.contentWidth
    contentHeight: collection.contentHeight
    flickableDirection: sideways ? Flickable.HorizontalFlick : Flickable.VerticalFlick
    boundsBehavior: Flickable.DragAndOvershootBounds
    // Thrown content goes half as far as its speed would take it in a second, however fast it was.
    flickDeceleration: Math.max(600, Math.abs(sideways ? horizontalVelocity : verticalVelocity))
    maximumFlickVelocity: 7000
    rebound: Transition {
        NumberAnimation { properties: "x,y"; duration: Theme.calm * 1.6; easing.type: Easing.OutQuint }
    }
    clip: true
    // A strip begins where the language begins: it is turned over, and each of its cells turned back.
    transform: Scale {
        origin.x: flick.width / 2
        xScale: flick.reversed ? -1 : 1
    }
    Accessible.role: Accessible.List
    Accessible.name: collection?.accessibleName ?? ""

    function report() {
        if (!collection)
            return; // the screen is on its way out
        collection.resize(width, height);
        collection.scrolledTo(contentX, contentY);
    }
    onWidthChanged: report()
    onHeightChanged: report()
    onContentXChanged: report()
    onContentYChanged: report()
    onDraggingChanged: {
        if (!collection)
            return;
        if (dragging)
            collection.scrollBegan();
        else
            collection.scrollEnded();
    }
    onTopMarginChanged: tellSurroundings()
    onBottomMarginChanged: tellSurroundings()
    onSideRoomChanged: tellSurroundings()
    Component.onCompleted: {
        tellSurroundings();
        contentY = -topMargin;
        report();
    }

    function tellSurroundings() {
        if (collection)
            collection.setSurroundings(topMargin, bottomMargin, sideRoom);
    }
    // Scrolls as far as it takes for all of a cell to be seen, and a piece of the next: the keyboard goes on to it.
    function reveal(cell: Item) {
        const peek = 40;
        const highest = cell.y + cell.height + peek - height + bottomMargin;
        const lowest = cell.y - peek - topMargin;
        const end = Math.max(-topMargin, contentHeight + bottomMargin - height);
        const place = Math.max(-topMargin, Math.min(Math.max(contentY, highest), lowest, end));
        if (place === contentY)
            return;
        collection.closeSwipes();
        contentY = place;
    }
    // The keyboard goes to the cell of an item; its neighbour has already scrolled it into view.
    function goTo(item: int) {
        for (let index = 0; index < contentItem.children.length; ++index) {
            const drawn = contentItem.children[index] as CellScope;
            if (drawn && drawn.cell.item === item)
                drawn.forceActiveFocus(Qt.TabFocusReason);
        }
    }

    Repeater {
        model: flick.collection.cells
        delegate: flick.delegate
        onItemAdded: (index, item) => {
            item.visible = Qt.binding(() => item.cell?.seen ?? false); // null while both go
            item.opacity = Qt.binding(() => item.cell?.alpha ?? 1);
        }
    }
    ScrollMark { list: flick }
    TouchSurface {
        width: Math.max(flick.contentWidth, flick.width)
        height: flick.contentHeight
        collection: flick.collection
    }
    ParallelAnimation {
        id: glide
        property real x
        property real y
        NumberAnimation { target: flick; property: "contentX"; to: glide.x; duration: Theme.calm; easing.type: Easing.InOutQuad }
        NumberAnimation { target: flick; property: "contentY"; to: glide.y; duration: Theme.calm; easing.type: Easing.InOutQuad }
    }
    Loader {
        id: menu
        readonly property bool opened: (item as ContextMenu)?.opened ?? false
        active: false
        source: "ContextMenu.qml"
        onOpenedChanged: if (!opened) flick.collection?.menuClosed()
    }
    Connections {
        target: flick.collection
        function onScrollRequested(x: real, y: real, animated: bool) {
            glide.stop();
            glide.x = x;
            glide.y = y;
            if (animated)
                return glide.start();
            flick.contentX = x;
            flick.contentY = y;
        }
        function onMenuOpened(item: MenuItem, x: real, y: real) {
            menu.active = true;
            menu.item.menu = item;
            menu.item.x = x;
            menu.item.y = y;
            menu.item.open();
        }
    }
}
