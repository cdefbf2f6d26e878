import QtQuick
import Tessivo

// One wheel of a date picker. It turns by touch, by a click on a row, by the mouse wheel, by arrow keys and by typing
// what it shows, and reports where it stops.
FocusScope {
    id: dial

    required property DatePickerItem picker
    required property int wheelIndex
    required property real rowHeight
    readonly property string current: list.rows[value - 1] ?? ""

    // What assistive technology says of it: the row's number among all.
    property int value: 1
    readonly property int minimumValue: 1
    readonly property int maximumValue: Math.max(1, list.rows.length)
    readonly property int stepSize: 1

    signal leftTowards(bool forward)

    activeFocusOnTab: true
    Accessible.role: Accessible.SpinBox
    Accessible.name: [picker.wheelName(wheelIndex), current].filter(part => part.length > 0).join(", ")
    Accessible.focusable: true
    Accessible.onIncreaseAction: turnBy(1)
    Accessible.onDecreaseAction: turnBy(-1)
    Keys.onUpPressed: turnBy(-1)
    Keys.onDownPressed: turnBy(1)
    Keys.onLeftPressed: leftTowards(Qt.application.layoutDirection === Qt.RightToLeft)
    Keys.onRightPressed: leftTowards(Qt.application.layoutDirection !== Qt.RightToLeft)
    Keys.onPressed: event => {
        event.accepted = true;
        if (event.key === Qt.Key_PageUp)
            turnBy(-5);
        else if (event.key === Qt.Key_PageDown)
            turnBy(5);
        else if (event.key === Qt.Key_Home)
            picker.turn(wheelIndex, 0);
        else if (event.key === Qt.Key_End)
            picker.turn(wheelIndex, list.rows.length - 1);
        else
            event.accepted = picker.type(wheelIndex, event.text);
    }

    function turnBy(steps: int) {
        const last = list.rows.length - 1;
        const row = picker.selectedRow(wheelIndex) + steps;
        picker.turn(wheelIndex, picker.wraps(wheelIndex) ? (row + 2 * list.rows.length) % list.rows.length
                                                         : Math.max(0, Math.min(row, last)));
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
        const picked = picker.selectedRow(wheelIndex);
        const away = (picked - list.currentIndex % rows.length + rows.length) % rows.length;
        list.currentIndex += wraps && away > rows.length / 2 ? away - rows.length
                           : wraps ? away : picked - list.currentIndex;
        value = picked + 1;
    }

    ListView {
        id: list

        readonly property int copies: 41 // enough that nobody turns to the end
        property list<string> rows

        anchors.fill: parent
        clip: true
        keyNavigationEnabled: false
        preferredHighlightBegin: (height - dial.rowHeight) / 2
        preferredHighlightEnd: preferredHighlightBegin + dial.rowHeight
        highlightRangeMode: ListView.StrictlyEnforceRange
        highlightMoveDuration: Theme.quick
        snapMode: ListView.SnapToItem
        boundsBehavior: Flickable.StopAtBounds
        onMovementEnded: dial.picker.turn(dial.wheelIndex, currentIndex % rows.length)

        delegate: PressArea {
            id: row
            required property int index
            readonly property real distance: Math.abs(y + height / 2 - list.contentY - list.height / 2) / list.height

            width: ListView.view.width
            height: dial.rowHeight
            activeFocusOnTab: false
            focusOnTouch: false
            Accessible.ignored: true
            onClicked: {
                dial.forceActiveFocus(Qt.MouseFocusReason);
                dial.picker.turn(dial.wheelIndex, index % list.rows.length);
            }
            Text {
                anchors.fill: parent
                text: list.rows.length > 0 ? list.rows[row.index % list.rows.length] : ""
                font.pixelSize: Theme.type(20)
                color: row.hovered ? Theme.accent : Theme.ink
                opacity: Math.max(0.12, 1 - 1.7 * row.distance)
                scale: 1 - 0.25 * row.distance
                horizontalAlignment: Text.AlignHCenter
                verticalAlignment: Text.AlignVCenter
                fontSizeMode: Text.HorizontalFit
                minimumPixelSize: 13
                elide: Text.ElideRight
                textFormat: Text.PlainText
                renderType: Text.QtRendering // which keeps its shape at any scale
            }
        }
    }
    NotchArea {
        anchors.fill: parent
        over: list
        onTurned: steps => dial.turnBy(steps)
    }
    Connections {
        target: dial.picker
        function onContentChanged() { dial.follow(); }
    }
    FocusRing { radius: 10 }
    Component.onCompleted: {
        follow();
        list.positionViewAtIndex(list.currentIndex, ListView.SnapPosition);
    }
}
