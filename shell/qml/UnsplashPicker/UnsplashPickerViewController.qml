import QtQuick
import Tessivo

// The photos of the service in a grid, under a bar with the search.
FocusScope {
    id: picker

    required property ScreenItem screen
    readonly property ButtonItem cancelBarButtonItem: screen.control("cancelBarButtonItem") as ButtonItem
    readonly property ViewItem searchBar: screen.control("searchBar")
    readonly property ViewItem pagingView: screen.control("pagingView")

    focus: true
    Keys.onEscapePressed: cancelBarButtonItem.releaseInside()
    Keys.onBackPressed: cancelBarButtonItem.releaseInside()

    Rectangle {
        anchors.fill: parent
        color: picker.screen.view.fill.color
    }
    CollectionFlick {
        id: photos
        anchors.fill: parent
        focus: true
        collection: picker.screen.control("collectionView") as CollectionItem
        topMargin: header.height
        sideRoom: Theme.margin
        bottomMargin: collection.footInset
        delegate: PhotoCell {}

        Item {
            y: picker.pagingView.y
            width: photos.width
            height: picker.pagingView.height
            visible: picker.pagingView.shown && !missing.visible
            Spinner {
                anchors.centerIn: parent
                activity: picker.screen.control("pagingSpinner") as ActivityItem
                side: 24
            }
        }
        Behavior on bottomMargin { NumberAnimation { duration: Theme.calm } }
    }
    Spinner {
        anchors.centerIn: parent
        activity: picker.screen.control("spinner") as ActivityItem
    }
    PhotosMissing {
        id: missing
        screen: picker.screen
        anchors.fill: parent
        anchors.topMargin: header.height
    }
    Rectangle {
        id: header
        width: parent.width
        height: picker.searchBar.placed ? search.y + search.height + 12 : 56
        color: picker.screen.view.fill.color

        MouseArea { anchors.fill: parent }
        IconButton {
            id: cancel
            button: picker.cancelBarButtonItem
            anchors.left: parent.left
            anchors.leftMargin: 6
            y: 6
        }
        StyledLabel {
            label: picker.screen.control("titleLabel") as LabelItem
            anchors.left: cancel.right
            anchors.right: parent.right
            anchors.rightMargin: cancel.width + 6
            anchors.verticalCenter: cancel.verticalCenter
            Accessible.role: Accessible.Heading
        }
        TextButton {
            button: picker.screen.control("doneBarButtonItem") as ButtonItem
            anchors.right: parent.right
            anchors.verticalCenter: cancel.verticalCenter
        }
        SearchField {
            id: search
            input: picker.searchBar as TextInputItem
            clearButton: picker.screen.control("clearButton") as ButtonItem
            visible: picker.searchBar.placed
            x: Theme.margin
            y: 56
            width: parent.width - 2 * Theme.margin
        }
        Rectangle {
            anchors.bottom: parent.bottom
            width: parent.width
            height: 1
            color: Theme.line
            opacity: Math.min(1, Math.max(0, (photos.contentY + header.height) / 24))
        }
    }
}
