import QtQuick
import Tessivo

// One event over the whole screen: its background from edge to edge, its count and its title at the foot.
FocusScope {
    id: page

    required property ScreenItem screen
    readonly property ImageItem image: screen.control("eventImage") as ImageItem
    readonly property LabelItem timeLabel: screen.control("timeLabel") as LabelItem
    readonly property LabelItem informationLabel: screen.control("eventInformationLabel") as LabelItem
    readonly property ButtonItem prevButton: screen.control("prevButton") as ButtonItem
    readonly property ButtonItem fillterButton: screen.control("fillterButton") as ButtonItem
    readonly property real side: Math.max(28, Math.min(width, height) * 0.075)

    focus: true
    Component.onCompleted: screen.view.drawnBy(page)
    Keys.onEscapePressed: prevButton.releaseInside()
    Keys.onBackPressed: prevButton.releaseInside()
    Keys.onMenuPressed: fillterButton.releaseInside()
    Keys.onPressed: event => {
        if (event.key === Qt.Key_F10 && event.modifiers & Qt.ShiftModifier)
            fillterButton.releaseInside();
    }

    Rectangle { // a picture that is not there leaves a calm ground for the text
        anchors.fill: parent
        color: Theme.noPicture
    }
    CardPaint {
        anchors.fill: parent
        visible: !page.image.loaded
        fill: page.screen.view.fill
    }
    CardPicture {
        anchors.fill: parent
        view: page.image
        upperText: Qt.rect(0, 0, width, 52)
        lowerText: Qt.rect(0, words.y, width, height - words.y)
    }
    IconButton {
        button: page.prevButton
        directional: true
        side: 28
        anchors.left: parent.left
        anchors.leftMargin: 10
        y: 12
    }
    IconButton {
        button: page.fillterButton
        side: 28
        anchors.right: parent.right
        anchors.rightMargin: 10
        y: 12
    }
    Column {
        id: words
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.bottom: parent.bottom
        anchors.leftMargin: page.side
        anchors.rightMargin: page.side
        anchors.bottomMargin: page.side + 12
        spacing: 20

        PosterLabel {
            label: page.timeLabel
            onPicture: page.image.loaded
            width: parent.width
        }
        Item {
            width: parent.width
            height: 3
            Rectangle {
                anchors.left: parent.left
                width: 40
                height: parent.height
                radius: height / 2
                color: Qt.rgba(1, 1, 1, 0.7)
            }
        }
        PosterLabel {
            label: page.informationLabel
            onPicture: page.image.loaded
            width: parent.width
            upperLines: 3
            Accessible.role: Accessible.Heading
        }
    }
}
