import QtQuick
import Tessivo

// The card of one event.
CellScope {
    id: card

    readonly property CollectionFlick list: parent?.parent as CollectionFlick
    readonly property ViewItem content: cell.control("contentView")
    readonly property ImageItem photo: cell.control("photoImage") as ImageItem
    readonly property LabelItem timeLabel: cell.control("timeLabel") as LabelItem
    readonly property LabelItem informationLabel: cell.control("eventInformationLabel") as LabelItem

    x: cell.x
    y: cell.y
    width: cell.width
    height: cell.height
    opacity: cell.alpha
    activeFocusOnTab: true
    // The card's face, wherever a swipe has taken it: a picture of the cell is one of the cell at rest.
    Component.onCompleted: cell.drawnBy(face)
    onActiveFocusChanged: if (activeFocus) list.reveal(card)
    Keys.onEscapePressed: list.collection.closeSwipes()
    Keys.onDeletePressed: cell.act("Delete")
    Keys.onUpPressed: list.goTo(cell.item - 1)
    Keys.onDownPressed: list.goTo(cell.item + 1)
    Keys.onMenuPressed: openMenu()
    Keys.onPressed: event => {
        if (event.key === Qt.Key_F10 && event.modifiers & Qt.ShiftModifier)
            openMenu();
    }
    Accessible.role: Accessible.Button
    Accessible.name: cell.accessibleName
    Accessible.ignored: cell.item < 0
    onClicked: list.collection.tapItem(cell.item)

    function openMenu() {
        list.collection.openMenu(cell.item, x + width / 2, y + height / 2);
    }

    MaskWindow {
        id: pane
        view: card.content
    }
    Item {
        id: face
        parent: pane.held
        x: card.content.x
        y: card.content.y
        width: card.content.width
        height: card.content.height
        scale: card.cell.lifted ? 1.03 : card.cell.highlighted ? 0.985 : 1
        Behavior on scale { NumberAnimation { duration: Theme.quick } }
        SoftShadow { radius: card.cell.cornerRadius }
        Rectangle { // a picture that is not there leaves a calm ground for the text
            anchors.fill: parent
            visible: !card.photo.loaded && !card.content.fill.fades && card.content.fill.color.a === 0
            radius: card.content.cornerRadius
            color: Theme.noPicture
        }
        CardPaint {
            anchors.fill: parent
            visible: !card.photo.loaded // or its edge shines through beside the picture's
            radius: card.content.cornerRadius
            fill: card.content.fill
        }
        CardPicture {
            anchors.fill: parent
            view: card.photo
            radius: card.content.cornerRadius
            upperText: texts.countArea
            lowerText: texts.informationArea
        }
        CardTexts {
            id: texts
            anchors.fill: parent
            count: card.timeLabel
            information: card.informationLabel
            onPicture: card.photo.loaded
        }
        Repeater {
            model: card.cell.attached
            ButtonRow {
                required property LooseViewItem modelData
                view: modelData
                z: -2 // the card's shadow falls on it
            }
        }
    }
    Rectangle { // under the mouse; no part of the card's picture
        parent: pane.held
        x: face.x
        y: face.y
        width: face.width
        height: face.height
        radius: card.content.cornerRadius
        color: "white"
        opacity: card.cell.hovered ? 0.08 : 0
        Behavior on opacity { NumberAnimation { duration: Theme.quick } }
    }
    FocusRing { target: card; radius: card.cell.cornerRadius + 3 }
}
