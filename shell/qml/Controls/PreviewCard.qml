import QtQuick
import Tessivo

// The card that previews an event on the screens that make or change it.
CardPaint {
    id: card

    required property ScreenItem screen
    property string parts: "eventView." // before the names of the card's parts
    property string countName: "timeLabel"
    readonly property ViewItem view: screen.control("eventView")
    readonly property LabelItem timeLabel: screen.control(parts + countName) as LabelItem
    readonly property LabelItem informationLabel: screen.control(parts + "eventInformationLabel") as LabelItem

    implicitHeight: 200
    fill: view.fill
    radius: view.cornerRadius
    Accessible.role: Accessible.StaticText
    Accessible.name: informationLabel.text + ", " + timeLabel.text

    CardPicture {
        id: picture
        anchors.fill: parent
        view: card.screen.control(card.parts + "photoView") as ImageItem
        radius: card.radius
        upperText: texts.countArea
        lowerText: texts.informationArea
    }
    CardTexts {
        id: texts
        anchors.fill: parent
        count: card.timeLabel
        information: card.informationLabel
        onPicture: picture.view.loaded
    }
    SoftShadow { radius: card.radius }
}
