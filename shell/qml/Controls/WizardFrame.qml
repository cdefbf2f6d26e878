import QtQuick
import Tessivo

// What the steps of the wizard share: Back, the progress, the heading, room for the step's rows, and Next.
FocusScope {
    id: frame

    required property ScreenItem screen
    default property alias rows: column.data
    property alias rowSpacing: column.spacing
    readonly property ButtonItem nextButton: screen.control("nextButton") as ButtonItem
    readonly property ButtonItem prevButton: screen.control("prevButton") as ButtonItem
    readonly property LabelItem titleLabel: screen.control("titleLabel") as LabelItem
    readonly property ImageItem topImage: screen.control("topImage") as ImageItem

    readonly property Item focused: Window.activeFocusItem

    onFocusedChanged: flick.reveal(focused)

    // A tap beside all controls.
    signal tappedBeside

    function tapBeside() {
        forceActiveFocus();
        screen.view.tap();
        tappedBeside();
    }

    focus: true
    Keys.onEscapePressed: prevButton.releaseInside()
    Keys.onBackPressed: prevButton.releaseInside()

    Rectangle {
        anchors.fill: parent
        color: frame.screen.view.fill.color
    }
    MouseArea {
        anchors.fill: parent
        onClicked: frame.tapBeside()
    }
    IconButton {
        id: back
        button: frame.prevButton
        directional: true
        anchors.left: parent.left
        anchors.leftMargin: 6
        y: 10
    }
    Icon {
        anchors.horizontalCenter: parent.horizontalCenter
        anchors.verticalCenter: back.verticalCenter
        name: frame.topImage.image
        tint: Theme.accent
        side: 8
        ratio: 20
        mirror: Qt.application.layoutDirection === Qt.RightToLeft
        Accessible.ignored: true
    }
    Flickable {
        id: flick
        anchors.top: back.bottom
        anchors.bottom: next.top
        anchors.bottomMargin: 8
        width: parent.width
        contentHeight: column.y + column.height + 24
        clip: true
        boundsBehavior: Flickable.StopAtBounds
        onHeightChanged: reveal(frame.focused)

        // Scrolls the focused control into view, with a piece of what stands around it.
        function reveal(item: Item) {
            let above = item;
            while (above && above !== column)
                above = above.parent;
            if (!above)
                return;
            const peek = 24;
            const top = item.mapToItem(contentItem, 0, 0).y;
            const end = Math.max(0, contentHeight - height);
            contentY = Math.max(0, Math.min(Math.max(contentY, top + item.height + peek - height), top - peek, end));
        }

        MouseArea {
            width: flick.width
            height: Math.max(flick.height, flick.contentHeight)
            onClicked: frame.tapBeside()
        }
        StyledLabel {
            id: heading
            label: frame.titleLabel
            x: Theme.margin
            y: 8
            width: parent.width - 2 * Theme.margin
            maximumLineCount: 1
            fontSizeMode: Text.HorizontalFit
            minimumPixelSize: 22
            Accessible.role: Accessible.Heading
        }
        Column {
            id: column
            x: Theme.margin
            y: heading.y + heading.height + 20
            width: parent.width - 2 * Theme.margin
            spacing: 8
        }
    }
    TextButton {
        id: next
        button: frame.nextButton
        filled: true
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.bottom: parent.bottom
        anchors.leftMargin: Theme.margin
        anchors.rightMargin: Theme.margin
        anchors.bottomMargin: Qt.inputMethod.visible ? frame.screen.bottomInset : 16
    }
}
