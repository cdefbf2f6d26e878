import QtQuick
import Tessivo

// What the drawings of all cells share: their place, their keys and what assistive technology reads. The keyboard walks
// through them by Tab and, along the list, by arrows; what it comes to is scrolled into view.
CellScope {
    id: drawn

    readonly property CollectionFlick list: parent?.parent as CollectionFlick

    function openMenu() {
        list.collection.openMenu(cell.item, x + width / 2, y + height / 2);
    }

    function walk(step: int, event: var) {
        event.accepted = !list.sideways;
        if (event.accepted)
            list.goTo(cell.item + step);
    }

    x: cell.x
    y: cell.y
    width: cell.width
    height: cell.height
    onActiveFocusChanged: if (activeFocus) list.reveal(drawn)
    onClicked: list.collection.tapItem(cell.item)
    Keys.onUpPressed: event => walk(-1, event)
    Keys.onDownPressed: event => walk(1, event)
    Keys.onMenuPressed: openMenu()
    Keys.onPressed: event => {
        if (event.key === Qt.Key_F10 && event.modifiers & Qt.ShiftModifier)
            openMenu();
    }
    Accessible.role: Accessible.Button
    Accessible.name: cell.accessibleName
    Accessible.ignored: cell.item < 0
}
