import QtQuick
import Tessivo

// One wheel of a date picker. It turns by touch, by the mouse wheel and by the arrow keys, and reports where it stops.
FocusScope {
    id: wheel

    required property DatePickerItem picker
    required property int wheelIndex
    property alias alignment: list.rowAlignment
    readonly property real rowHeight: 36

    activeFocusOnTab: true
    Accessible.role: Accessible.SpinBox
    Accessible.name: list.currentItem ? list.currentItem.text : ""
    Accessible.onIncreaseAction: turnBy(1)
    Accessible.onDecreaseAction: turnBy(-1)
    Keys.onUpPressed: turnBy(-1)
    Keys.onDownPressed: turnBy(1)

    function turnBy(steps: int) {
        const row = picker.selectedRow(wheelIndex) + steps;
        picker.turn(wheelIndex, picker.wraps(wheelIndex) ? (row + list.rows.length) % list.rows.length : row);
    }

    // The program's rows and its place, after any change of the picked date. The nearest copy of the picked row is
    // taken, so that the wheel goes on in the direction in which it was turned.
    function follow() {
        const rows = picker.rows(wheelIndex);
        const wraps = picker.wraps(wheelIndex);
        const count = rows.length * (wraps ? list.copies : 1);
        if (count !== list.count || rows[0] !== list.rows[0]) {
            list.rows = rows;
            list.model = count;
            list.currentIndex = wraps ? rows.length * (list.copies - 1) / 2 : 0;
        }
        const away = (picker.selectedRow(wheelIndex) - list.currentIndex % rows.length + rows.length) % rows.length;
        list.currentIndex += wraps && away > rows.length / 2 ? away - rows.length
                           : wraps ? away : picker.selectedRow(wheelIndex) - list.currentIndex;
    }

    ListView {
        id: list

        readonly property int copies: 41 // enough that nobody turns to the end
        property list<string> rows
        property int rowAlignment: Text.AlignHCenter

        anchors.fill: parent
        clip: true
        focus: true
        keyNavigationEnabled: false
        preferredHighlightBegin: (height - wheel.rowHeight) / 2
        preferredHighlightEnd: preferredHighlightBegin + wheel.rowHeight
        highlightRangeMode: ListView.StrictlyEnforceRange
        highlightMoveDuration: Theme.quick
        snapMode: ListView.SnapToItem
        boundsBehavior: Flickable.StopAtBounds
        onMovementEnded: wheel.picker.turn(wheel.wheelIndex, currentIndex % rows.length)

        delegate: Text {
            id: row
            required property int index
            readonly property real distance: Math.abs(y + height / 2 - list.contentY - list.height / 2) / list.height

            width: ListView.view.width
            height: wheel.rowHeight
            text: list.rows.length > 0 ? list.rows[index % list.rows.length] : ""
            font.pixelSize: 20
            color: Theme.ink
            opacity: Math.max(0.12, 1 - 1.7 * distance)
            scale: 1 - 0.25 * distance
            horizontalAlignment: list.rowAlignment
            verticalAlignment: Text.AlignVCenter
            elide: Text.ElideRight
            Accessible.ignored: true
            MouseArea {
                anchors.fill: parent
                onClicked: wheel.picker.turn(wheel.wheelIndex, row.index % list.rows.length)
            }
        }
        WheelHandler {
            acceptedDevices: PointerDevice.Mouse | PointerDevice.TouchPad
            property real turned: 0
            onWheel: event => {
                turned += event.angleDelta.y;
                while (Math.abs(turned) >= 120) {
                    wheel.turnBy(turned > 0 ? -1 : 1);
                    turned -= turned > 0 ? 120 : -120;
                }
            }
        }
    }
    Connections {
        target: wheel.picker
        function onContentChanged() { wheel.follow(); }
    }
    FocusRing { radius: 10 }
    Component.onCompleted: {
        follow();
        list.positionViewAtIndex(list.currentIndex, ListView.SnapPosition);
    }
}
