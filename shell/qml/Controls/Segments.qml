import QtQuick
import Tessivo

// A row of titles of which one is selected.
Rectangle {
    id: segments

    required property SegmentedItem item
    readonly property int count: item.titles.length
    // The longest words of all languages stay whole, and all are as large as the longest.
    readonly property real widest: Math.max(...item.titles.map(title => metrics.advanceWidth(title)))
    readonly property int letters: Math.max(10, Math.min(Theme.caption, Math.floor(Theme.caption * (width / count - 8) / widest)))
    readonly property bool reversed: Qt.application.layoutDirection === Qt.RightToLeft

    implicitHeight: Math.max(Theme.touch, Theme.caption + 24)
    radius: 10
    color: Theme.field
    activeFocusOnTab: true
    Keys.onLeftPressed: item.select(item.selectedIndex + (reversed ? 1 : -1))
    Keys.onRightPressed: item.select(item.selectedIndex + (reversed ? -1 : 1))
    Keys.onPressed: event => {
        event.accepted = event.key === Qt.Key_Home || event.key === Qt.Key_End;
        if (event.accepted)
            item.select(event.key === Qt.Key_Home ? 0 : count - 1);
    }
    Accessible.role: Accessible.PageTabList
    Accessible.name: item.accessibleName
    Accessible.focusable: true

    Rectangle {
        readonly property int place: segments.reversed ? segments.count - 1 - segments.item.selectedIndex
                                                       : segments.item.selectedIndex
        x: 3 + place * (parent.width - 6) / segments.count
        y: 3
        width: (parent.width - 6) / segments.count
        height: parent.height - 6
        radius: 7
        color: segments.item.selectedTint
        Behavior on x { NumberAnimation { duration: Theme.quick; easing.type: Easing.OutCubic } }
    }
    Row {
        anchors.fill: parent
        anchors.leftMargin: 3
        anchors.rightMargin: 3
        Repeater {
            model: segments.item.titles
            ButtonArea {
                id: segment
                required property string modelData
                required property int index
                readonly property bool selected: index === segments.item.selectedIndex
                width: parent.width / segments.count
                height: parent.height
                radius: 7
                activeFocusOnTab: false
                focusOnTouch: false
                onClicked: segments.item.select(index)
                Accessible.role: Accessible.PageTab
                Accessible.name: modelData
                Accessible.selectable: true
                Accessible.selected: selected
                Text {
                    anchors.fill: parent
                    anchors.margins: 2
                    text: segment.modelData
                    font.pixelSize: segments.letters
                    font.weight: Font.Medium
                    color: segment.selected ? "white" : Theme.muted
                    horizontalAlignment: Text.AlignHCenter
                    verticalAlignment: Text.AlignVCenter
                    elide: Text.ElideRight
                    textFormat: Text.PlainText
                }
            }
        }
    }
    FontMetrics {
        id: metrics
        font.pixelSize: Theme.caption
        font.weight: Font.Medium
    }
    FocusRing { radius: 13 }
}
