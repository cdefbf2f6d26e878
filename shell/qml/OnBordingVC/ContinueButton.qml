import QtQuick
import QtQuick.Templates as T
import Tessivo

// The wide button of the tour, on a gradient of its own.
T.AbstractButton {
    id: control

    required property ButtonItem button

    implicitHeight: 56
    activeFocusOnTab: true
    focusPolicy: Qt.StrongFocus
    onPressed: button.press()
    onReleased: if (!hovered && !pressed) button.releaseOutside()
    onCanceled: button.releaseOutside()
    onClicked: button.releaseInside()
    Keys.onReturnPressed: clicked()
    Keys.onEnterPressed: clicked()
    Accessible.role: Accessible.Button
    Accessible.name: button.accessibleName
    Accessible.onPressAction: clicked()

    background: CardPaint {
        radius: control.button.cornerRadius
        fill: control.button.fill
        opacity: control.pressed ? 0.92 : 1
        SoftShadow { radius: control.button.cornerRadius }
    }
    contentItem: Text {
        text: control.button.title
        color: control.button.titleColor
        font.pixelSize: control.button.size
        font.weight: control.button.weight
        horizontalAlignment: Text.AlignHCenter
        verticalAlignment: Text.AlignVCenter
        elide: Text.ElideRight
        textFormat: Text.PlainText
    }
    FocusRing { visible: control.visualFocus; radius: control.button.cornerRadius + 3 }
}
