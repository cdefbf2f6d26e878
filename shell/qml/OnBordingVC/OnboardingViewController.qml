import QtQuick
import Tessivo

// The tour of the first run: slides to turn by finger, wheel, keys or the button.
FocusScope {
    id: tour

    required property ScreenItem screen
    readonly property bool reversed: Qt.application.layoutDirection === Qt.RightToLeft

    focus: true
    Keys.onRightPressed: pages.turn(reversed ? -1 : 1)
    Keys.onLeftPressed: pages.turn(reversed ? 1 : -1)

    Rectangle {
        anchors.fill: parent
        color: tour.screen.view.fill.color
    }
    PagedFlick {
        id: pages
        anchors.top: parent.top
        anchors.bottom: dots.top
        anchors.bottomMargin: 12
        width: parent.width
        collection: tour.screen.control("collectionView") as CollectionItem
        delegate: OnboardingCollectionViewCell { turned: pages.reversed }
    }
    Row {
        id: dots
        anchors.horizontalCenter: parent.horizontalCenter
        anchors.bottom: go.top
        anchors.bottomMargin: 20
        spacing: 8
        Repeater {
            model: pages.pageCount
            Rectangle {
                required property int index
                width: index === pages.page ? 24 : 8
                height: 8
                radius: 4
                color: index === pages.page ? Theme.accent : Theme.line
                Behavior on width { NumberAnimation { duration: Theme.quick } }
            }
        }
    }
    ContinueButton {
        id: go
        button: tour.screen.control("continueButton") as ButtonItem
        anchors.horizontalCenter: parent.horizontalCenter
        anchors.bottom: parent.bottom
        anchors.bottomMargin: 28
        width: Math.min(parent.width - 2 * 24, 420)
        focus: true
    }
}
