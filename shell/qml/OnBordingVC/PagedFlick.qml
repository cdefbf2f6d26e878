import QtQuick
import Tessivo

// A collection whose items fill it, turned one at a time.
CollectionFlick {
    id: pages

    readonly property int pageCount: width > 0 ? Math.round(contentWidth / width) : 0
    property int page: 0

    sideways: true
    boundsBehavior: Flickable.DragOverBounds
    onCollectionChanged: page = 0

    function turn(by: int) {
        turnTo(page + by);
    }
    function turnTo(wanted: int) {
        page = Math.max(0, Math.min(wanted, pageCount - 1));
        slide.to = page * width;
        slide.restart();
    }
    // Turns to the page that the finger's distance and speed suggest.
    function settle(velocity: real) {
        if (!collection.paging || slide.running)
            return;
        const here = contentX / width;
        const flung = Math.abs(velocity) > 300;
        turnTo(flung ? (velocity > 0 ? Math.ceil(here) : Math.floor(here)) : Math.round(here));
    }
    onDragStarted: slide.stop()
    onFlickStarted: {
        const velocity = horizontalVelocity;
        cancelFlick();
        settle(velocity);
    }
    onMovementEnded: settle(0)
    onWidthChanged: {
        slide.stop();
        contentX = page * width;
    }
    onContentXChanged: if (!slide.running && !moving && width > 0) page = Math.round(contentX / width)

    NumberAnimation {
        id: slide
        target: pages
        property: "contentX"
        duration: Theme.calm
        easing.type: Easing.OutCubic
    }
    WheelHandler {
        property real turned: 0
        acceptedDevices: PointerDevice.Mouse | PointerDevice.TouchPad
        onWheel: event => {
            if (slide.running)
                return;
            turned += Math.abs(event.angleDelta.x) > Math.abs(event.angleDelta.y) ? event.angleDelta.x : event.angleDelta.y;
            if (Math.abs(turned) < 120)
                return;
            pages.turn(turned < 0 ? 1 : -1);
            turned = 0;
        }
    }
}
