import QtQuick
import Tessivo

// A photo of the user's own under a frame of a card's shape: to be moved and enlarged until it fits.
FocusScope {
    id: page

    required property ScreenItem screen
    readonly property ScrollItem crop: screen.control("cropView") as ScrollItem
    readonly property ImageItem picture: screen.control("imageView") as ImageItem
    readonly property ButtonItem cancelButton: screen.control("cancelButton") as ButtonItem
    readonly property ButtonItem chooseButton: screen.control("chooseButton") as ButtonItem
    readonly property real step: 24
    readonly property real zoomStep: 1.15

    function zoom(factor: real) {
        crop.zoomBy(factor, crop.width / 2, crop.height / 2);
    }

    focus: true
    Keys.onEscapePressed: cancelButton.releaseInside()
    Keys.onBackPressed: cancelButton.releaseInside()
    Keys.onReturnPressed: if (chooseButton.shown) chooseButton.releaseInside()
    Keys.onEnterPressed: if (chooseButton.shown) chooseButton.releaseInside()
    Keys.onPressed: event => {
        event.accepted = true;
        switch (event.key) {
        case Qt.Key_Left: crop.moveBy(step, 0); break;
        case Qt.Key_Right: crop.moveBy(-step, 0); break;
        case Qt.Key_Up: crop.moveBy(0, step); break;
        case Qt.Key_Down: crop.moveBy(0, -step); break;
        case Qt.Key_Plus: zoom(zoomStep); break;
        case Qt.Key_Minus: zoom(1 / zoomStep); break;
        default: event.accepted = false;
        }
    }

    Rectangle {
        anchors.fill: parent
        color: page.screen.view.fill.color
    }
    Item {
        id: desk
        anchors.fill: parent
        clip: true
        focus: true
        activeFocusOnTab: true
        Accessible.role: Accessible.Graphic
        Accessible.name: page.picture.accessibleName
        Accessible.focusable: true

        PicturePaint {
            x: page.crop.x - page.crop.offsetX
            y: page.crop.y - page.crop.offsetY
            width: page.picture.width
            height: page.picture.height
            view: page.picture
        }
        FramePaint {
            anchors.fill: parent
            visible: page.chooseButton.shown
            frame: Qt.rect(page.crop.x, page.crop.y, page.crop.width, page.crop.height)
        }
        DragHandler {
            property point last
            target: null
            dragThreshold: 4
            onActiveChanged: last = Qt.point(0, 0)
            onTranslationChanged: if (active) {
                page.crop.moveBy(translation.x - last.x, translation.y - last.y);
                last = Qt.point(translation.x, translation.y);
            }
        }
        PinchHandler {
            property real last: 1
            target: null
            onActiveChanged: last = 1
            onActiveScaleChanged: if (active) {
                page.crop.zoomBy(activeScale / last, centroid.position.x - page.crop.x,
                                 centroid.position.y - page.crop.y);
                last = activeScale;
            }
        }
        WheelHandler {
            onWheel: event => page.crop.zoomBy(Math.pow(1.0015, event.angleDelta.y), event.x - page.crop.x,
                                               event.y - page.crop.y)
        }
    }
    FocusRing { target: desk; anchors.margins: 3; radius: 0 }
    CropBar { screen: page.screen }
}
