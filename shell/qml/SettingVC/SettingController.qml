import QtQuick
import Tessivo

// The settings: a bar, and the sections of rows one under the other.
FocusScope {
    id: settings

    required property ScreenItem screen
    readonly property ScrollItem page: screen.control("collectionView") as ScrollItem
    readonly property CollectionItem applications: screen.control("ourApplications") as CollectionItem

    focus: true

    // Scrolls the focused control into view, with a piece of what comes next.
    function reveal(item: Item) {
        const peek = 56;
        const y = item.mapToItem(flick.contentItem, 0, 0).y;
        const end = Math.max(0, flick.contentHeight - flick.height);
        flick.contentY = Math.max(0, Math.min(Math.max(flick.contentY, y + item.height + peek - flick.height),
                                              y - peek, end));
    }

    Rectangle {
        id: bar
        width: parent.width
        height: Math.max(56, heading.implicitHeight + 8)
        color: "white"
        StyledLabel {
            id: heading
            label: settings.screen.control("mainLabel") as LabelItem
            maximumLineCount: 1
            fontSizeMode: Text.HorizontalFit
            minimumPixelSize: label.size
            anchors.left: parent.left
            anchors.leftMargin: 20
            anchors.right: done.left
            anchors.verticalCenter: parent.verticalCenter
            horizontalAlignment: Text.AlignLeft
            Accessible.role: Accessible.Heading
        }
        MouseArea { // the keyboard has the Home key for this
            anchors.fill: parent
            anchors.rightMargin: done.width
            onClicked: (settings.screen.control("mainButton") as ButtonItem).releaseInside()
        }
        TextButton {
            id: done
            button: settings.screen.control("doneButton") as ButtonItem
            anchors.right: parent.right
            anchors.rightMargin: 4
            anchors.verticalCenter: parent.verticalCenter
        }
    }
    Rectangle {
        anchors.top: bar.bottom
        anchors.bottom: parent.bottom
        width: parent.width
        color: settings.screen.view.fill.color
    }
    Flickable {
        id: flick
        anchors.top: bar.bottom
        anchors.bottom: parent.bottom
        width: parent.width
        contentHeight: settings.page.contentHeight
        clip: true
        onContentYChanged: settings.page.scrollTo(0, contentY)

        Connections {
            target: settings.page
            function onGeometryChanged() {
                if (!flick.moving)
                    flick.contentY = settings.page.offsetY;
            }
        }
        SettingHeader {
            label: settings.screen.control("ourApplications.header") as LabelItem
            rows: settings.applications
        }
        AppStrip {
            id: strip
            anchors.left: parent.left
            anchors.leftMargin: Theme.margin
            anchors.right: parent.right
            collection: settings.applications
            onReached: settings.reveal(strip)
        }
        Repeater {
            model: ["feedback", "other", "publicDocuments"]
            Item {
                id: section
                required property string modelData
                readonly property CollectionItem rows: settings.screen.control(modelData) as CollectionItem
                width: flick.width
                SettingHeader {
                    label: settings.screen.control(section.modelData + ".header") as LabelItem
                    rows: section.rows
                }
                SettingList {
                    id: list
                    x: Theme.margin
                    width: section.width - 2 * Theme.margin
                    interactive: false
                    collection: section.rows
                    delegate: SettingCell {
                        showsValue: section.modelData === "feedback"
                        onReached: row => settings.reveal(row)
                    }
                }
            }
        }
    }
    Rectangle {
        anchors.top: bar.bottom
        width: parent.width
        height: 1
        color: settings.screen.control("separationView").fill.color
        opacity: Math.min(1, Math.max(0, flick.contentY / 24))
    }
    Keys.onPressed: event => {
        const end = Math.max(0, flick.contentHeight - flick.height);
        const goals = { [Qt.Key_Home]: 0, [Qt.Key_End]: end, [Qt.Key_PageUp]: flick.contentY - flick.height * 0.8,
                        [Qt.Key_PageDown]: flick.contentY + flick.height * 0.8 };
        if (!(event.key in goals))
            return;
        flick.contentY = Math.max(0, Math.min(goals[event.key], end));
        event.accepted = true;
    }
}
