import QtQuick
import Tessivo

// A row of titles of which one is selected.
Rectangle {
    id: segments

    required property SegmentedItem item
    readonly property int count: item.titles.length
    readonly property bool reversed: Qt.application.layoutDirection === Qt.RightToLeft

    implicitHeight: Theme.touch
    radius: 10
    color: Theme.field
    activeFocusOnTab: true
    Keys.onLeftPressed: item.select(item.selectedIndex + (reversed ? 1 : -1))
    Keys.onRightPressed: item.select(item.selectedIndex + (reversed ? -1 : 1))
    Accessible.role: Accessible.PageTabList
    Accessible.name: item.accessibleName

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
            Item {
                id: segment
                required property string modelData
                required property int index
                readonly property bool selected: index === segments.item.selectedIndex
                width: parent.width / segments.count
                height: parent.height
                Accessible.role: Accessible.PageTab
                Accessible.name: modelData
                Accessible.selected: selected
                Accessible.onPressAction: segments.item.select(index)
                Text {
                    anchors.centerIn: parent
                    text: segment.modelData
                    font.pixelSize: Theme.caption
                    font.weight: Font.Medium
                    color: segment.selected ? "white" : Theme.muted
                }
                MouseArea {
                    anchors.fill: parent
                    onClicked: segments.item.select(segment.index)
                }
            }
        }
    }
    FocusRing { radius: 13 }
}
