import QtQuick
import Tessivo

// A picture at full height, to be scrolled sideways: what is in view is kept.
FocusScope {
    id: page

    required property ScreenItem screen
    readonly property ScrollItem scroll: screen.control("scrollView") as ScrollItem
    readonly property ButtonItem prevButton: screen.control("prevButton") as ButtonItem
    readonly property ButtonItem saveButton: screen.control("saveButton") as ButtonItem
    readonly property real step: 48

    focus: true
    Keys.onEscapePressed: prevButton.releaseInside()
    Keys.onBackPressed: prevButton.releaseInside()
    Keys.onReturnPressed: saveButton.releaseInside()
    Keys.onEnterPressed: saveButton.releaseInside()
    Keys.onLeftPressed: flick.moveBy(-step)
    Keys.onRightPressed: flick.moveBy(step)

    Rectangle {
        anchors.fill: parent
        color: page.screen.view.fill.color
    }
    IconButton {
        button: page.prevButton
        directional: true
        anchors.left: parent.left
        anchors.leftMargin: 6
        y: 6
    }
    TextButton {
        button: page.saveButton
        anchors.right: parent.right
        anchors.rightMargin: 4
        y: 6
    }
    Flickable {
        id: flick

        // A picture narrower than the screen stands in its middle.
        readonly property real room: Math.max(0, (width - contentWidth) / 2)

        function moveBy(distance: real) {
            contentX = Math.max(-room, Math.min(contentX + distance, contentWidth - width + room));
        }

        x: page.scroll.x
        y: page.scroll.y
        width: page.scroll.width
        height: page.scroll.height
        contentWidth: page.scroll.contentWidth
        contentHeight: page.scroll.contentHeight
        leftMargin: room
        rightMargin: room
        flickableDirection: Flickable.HorizontalFlick
        clip: true
        focus: true
        activeFocusOnTab: true
        onContentXChanged: page.scroll.scrollTo(contentX, 0)
        Accessible.role: Accessible.Graphic
        Accessible.name: qsTr("Picture")
        Accessible.focusable: true

        PicturePaint {
            width: flick.contentWidth
            height: flick.contentHeight
            view: page.screen.control("unsplashImage") as ImageItem
        }
        WheelHandler {
            orientation: Qt.Vertical
            onWheel: event => flick.moveBy(-event.angleDelta.y)
        }
    }
    FramePaint {
        readonly property ViewItem card: page.screen.control("cardFrame")
        x: flick.x
        y: flick.y
        width: flick.width
        height: flick.height
        shade: 0.3
        frame: Qt.rect(card.x - x, card.y - y, card.width, card.height)
    }
    FocusRing { target: flick; anchors.margins: 3; radius: 0 }
    PhotographerButton {
        button: page.screen.control("photographerButton") as ButtonItem
        anchors.left: parent.left
        anchors.leftMargin: Theme.margin
        anchors.bottom: parent.bottom
        anchors.bottomMargin: 24
        maximumWidth: parent.width - 2 * Theme.margin
    }
}
