import QtQuick
import Tessivo

// The page on which notifications are allowed or forbidden.
Item {
    id: page

    required property ScreenItem screen

    Column {
        anchors.fill: parent
        anchors.margins: 24
        anchors.topMargin: 32
        spacing: 12
        StyledLabel {
            label: page.screen.control("titleLabel") as LabelItem
            width: parent.width
            Accessible.role: Accessible.Heading
        }
        StyledLabel {
            label: page.screen.control("explanationLabel") as LabelItem
            width: parent.width
        }
        SwitchRow {
            label: page.screen.control("allowLabel") as LabelItem
            item: page.screen.control("allowSwitch") as SwitchItem
            width: parent.width
        }
    }
}
