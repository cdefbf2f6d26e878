import QtQuick
import Tessivo

// What stands in the place of the photos when there is nothing to see.
Rectangle {
    id: missing

    required property ScreenItem screen
    readonly property ViewItem emptyView: screen.control("emptyView")

    visible: emptyView.placed
    color: emptyView.fill.color

    MouseArea { anchors.fill: parent } // what lies below is out of reach
    Column {
        anchors.centerIn: parent
        width: Math.min(parent.width - 64, 420)
        spacing: 8

        Icon {
            anchors.horizontalCenter: parent.horizontalCenter
            name: "photo"
            tint: Theme.line
            side: 72
        }
        Item { width: 1; height: 4 }
        StyledLabel {
            label: missing.screen.control("emptyTitleLabel") as LabelItem
            width: parent.width
            fontSizeMode: Text.HorizontalFit // no word in two pieces
            minimumPixelSize: label.size
            Accessible.role: Accessible.Heading
        }
        StyledLabel {
            label: missing.screen.control("emptyDescriptionLabel") as LabelItem
            width: parent.width
            lineHeight: 1.2
        }
    }
}
