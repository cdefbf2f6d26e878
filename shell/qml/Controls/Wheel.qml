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

    function turnBy(rows: int) {
        const row = picker.selectedRow(wheelIndex) + rows;
        picker.turn(wheelIndex, picker.wraps(wheelIndex) ? (row + list.count) % list.count : row);
    }

    // The program's rows and its place, after any change of the picked date.
    function follow() {
        const rows = picker.rows(wheelIndex);
        if (rows.length !== list.count || rows[0] !== list.rows[0] || rows[rows.length - 1] !== list.rows[list.count - 1])
            list.rows = rows;
        if (list.currentIndex !== picker.selectedRow(wheelIndex))
            list.positionViewAtIndex(picker.selectedRow(wheelIndex), ListView.Center);
        list.currentIndex = picker.selectedRow(wheelIndex);
    }

    ListView {
        id: list

        property list<string> rows
        property int rowAlignment: Text.AlignHCenter

        anchors.fill: parent
        clip: true
        focus: true
        model: rows
        keyNavigationEnabled: false
        preferredHighlightBegin: (height - wheel.rowHeight) / 2
        preferredHighlightEnd: preferredHighlightBegin + wheel.rowHeight
        highlightRangeMode: ListView.StrictlyEnforceRange
        highlightMoveDuration: Theme.quick
        snapMode: ListView.SnapToItem
        boundsBehavior: Flickable.StopAtBounds
        onMovementEnded: wheel.picker.turn(wheel.wheelIndex, currentIndex)

        delegate: Text {
            id: row
            required property string modelData
            required property int index
            readonly property real distance: Math.abs(y + height / 2 - list.contentY - list.height / 2) / list.height

            width: ListView.view.width
            height: wheel.rowHeight
            text: modelData
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
                onClicked: wheel.picker.turn(wheel.wheelIndex, row.index)
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
    Component.onCompleted: follow()
}
