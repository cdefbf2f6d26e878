import QtQuick

Rectangle {
    id: button

    property alias text: label.text
    property bool main: false
    signal pressed

    height: Math.max(48, label.implicitHeight + 20)
    radius: 12
    color: main ? (area.pressed ? "#2C44B8" : "#3A55D9") : (area.pressed ? "#D5D9E3" : "#E4E7EE")
    border.width: activeFocus ? 2 : 0
    border.color: main ? "#15171C" : "#3A55D9"
    activeFocusOnTab: true
    Accessible.role: Accessible.Button
    Accessible.name: text
    Accessible.focusable: true
    Accessible.onPressAction: pressed()
    Keys.onReturnPressed: pressed()
    Keys.onEnterPressed: pressed()
    Keys.onSpacePressed: pressed()
    Keys.onDownPressed: nextItemInFocusChain(true).forceActiveFocus(Qt.TabFocusReason)
    Keys.onUpPressed: nextItemInFocusChain(false).forceActiveFocus(Qt.BacktabFocusReason)

    Text {
        id: label
        anchors.centerIn: parent
        width: parent.width - 24
        wrapMode: Text.Wrap
        textFormat: Text.PlainText
        horizontalAlignment: Text.AlignHCenter
        font.pixelSize: 16
        font.weight: Font.Medium
        color: button.main ? "white" : "#15171C"
    }
    MouseArea {
        id: area
        anchors.fill: parent
        cursorShape: Qt.PointingHandCursor
        onClicked: button.pressed()
    }
}
