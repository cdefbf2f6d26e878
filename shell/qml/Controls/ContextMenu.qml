import QtQuick
import QtQuick.Templates as T
import Tessivo

// The menu that a long press opens beside the finger.
T.Popup {
    id: popup

    property MenuItem menu
    property Item opener // had the keyboard, and gets it back unless a choice opens something

    width: 256
    height: implicitContentHeight + topPadding + bottomPadding
    verticalPadding: 4
    margins: 12
    modal: true
    focus: true
    transformOrigin: T.Popup.Top
    closePolicy: T.Popup.CloseOnEscape | T.Popup.CloseOnPressOutside
    onAboutToShow: opener = parent.Window.activeFocusItem
    onAboutToHide: opener?.forceActiveFocus(Qt.PopupFocusReason)
    enter: Transition {
        NumberAnimation { property: "opacity"; from: 0; to: 1; duration: Theme.quick }
        NumberAnimation { property: "scale"; from: 0.9; to: 1; duration: Theme.quick; easing.type: Easing.OutCubic }
    }
    exit: Transition {
        NumberAnimation { property: "opacity"; to: 0; duration: Theme.quick }
    }
    T.Overlay.modal: Rectangle { color: Qt.rgba(0, 0, 0, 0.2) }

    background: Rectangle {
        radius: Theme.radius
        color: "white"
        SoftShadow { radius: Theme.radius }
    }
    contentItem: Column {
        LayoutMirroring.enabled: Qt.application.layoutDirection === Qt.RightToLeft
        LayoutMirroring.childrenInherit: true

        ContextMenuRow {
            visible: popup.menu?.nested ?? false
            width: parent.width
            symbol: "chevron.backward"
            onClicked: popup.menu.goBack()
        }
        Repeater {
            model: popup.menu?.entries ?? []
            ContextMenuRow {
                required property menuEntry modelData
                required property int index
                width: parent.width
                focus: index === 0
                title: modelData.title
                symbol: modelData.symbol
                opensMore: modelData.opensMore
                onClicked: popup.menu.choose(index)
            }
        }
    }
    Connections {
        target: popup.menu
        function onClosed() { popup.close(); }
    }
}
