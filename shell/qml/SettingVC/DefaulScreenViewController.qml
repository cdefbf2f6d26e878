import QtQuick
import Tessivo

// Chooses one value of a short list; for the card size, under a sample card.
FocusScope {
    id: options

    required property ScreenItem screen
    readonly property CollectionItem table: screen.control("tableView") as CollectionItem
    readonly property ViewItem card: screen.control("eventView")

    focus: true

    IconButton {
        id: back
        button: options.screen.control("prevButton") as ButtonItem
        directional: true
        anchors.left: parent.left
        anchors.leftMargin: 6
        y: 10
    }
    StyledLabel {
        label: options.screen.control("titleLabel") as LabelItem
        anchors.left: back.right
        anchors.right: parent.right
        anchors.rightMargin: back.width + 6
        anchors.verticalCenter: back.verticalCenter
        horizontalAlignment: Text.AlignHCenter
        Accessible.role: Accessible.Heading
    }
    Item { // room for the largest card: the rows keep their place
        anchors.top: back.bottom
        anchors.bottom: choices.top
        width: parent.width
        clip: true
        CardPaint {
            id: sample
            anchors.centerIn: parent
            visible: options.card.shown
            width: options.card.width
            height: options.card.height
            // A sheet is narrower than a large screen, on which the card is that wide.
            scale: Math.min(1, (parent.width - 2 * Theme.margin) / width, (parent.height - 16) / height)
            radius: options.card.cornerRadius
            fill: options.card.fill
            Accessible.role: Accessible.StaticText
            Accessible.name: texts.information.text + ", " + texts.count.text
            CardTexts {
                id: texts
                anchors.fill: parent
                count: options.screen.control("timeLabel") as LabelItem
                information: options.screen.control("eventInformationLabel") as LabelItem
            }
        }
    }
    CollectionFlick {
        id: choices
        anchors.bottom: parent.bottom
        anchors.bottomMargin: 12
        width: parent.width
        height: Math.min(contentHeight, options.height - back.height - 40)
        collection: options.table
        delegate: OptionCell {}
    }
}
