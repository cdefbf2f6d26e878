import QtQuick
import Tessivo

// The count of a card at its upper right, its title and date at its lower left. A wide title takes two lines, and then
// smaller letters, before it is cut; low cards have narrower margins.
Item {
    id: texts

    required property LabelItem count
    required property LabelItem information
    property bool onPicture: false
    readonly property rect countArea: countText.textArea
    readonly property rect informationArea: informationText.textArea
    // A card keeps its height, so letters grow as far as four lines of them have room in it.
    readonly property real textScale: Math.min(Theme.textScale, Math.max(1, height / 150))
    readonly property real margin: Math.max(12, Math.min(24, height * 0.16 - 10))

    CardLabel {
        id: countText
        label: texts.count
        textScale: texts.textScale
        onPicture: texts.onPicture
        anchors.top: parent.top
        anchors.right: parent.right
        anchors.margins: texts.margin
        width: parent.width - 2 * texts.margin
    }
    CardLabel {
        id: informationText
        label: texts.information
        textScale: texts.textScale
        onPicture: texts.onPicture
        room: texts.height - 2 * texts.margin - countText.height - 4
        anchors.left: parent.left
        anchors.bottom: parent.bottom
        anchors.margins: texts.margin
        width: parent.width - 2 * texts.margin
    }
}
