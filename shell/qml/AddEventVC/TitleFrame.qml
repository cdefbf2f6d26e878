import QtQuick
import Tessivo

// The title of an event, beside the card that it has.
WizardFrame {
    id: step

    property string cardParts: "eventView." // before the names of the card's parts

    readonly property TextInputItem textField: screen.control("textField") as TextInputItem

    rowSpacing: 8

    EditableField {
        input: step.textField
        width: parent.width
        focus: true
    }
    StyledLabel {
        label: step.screen.control("CountLabel") as LabelItem
        x: 4
        width: parent.width - 8
    }
    Item { width: 1; height: 16 }
    PreviewCard {
        screen: step.screen
        parts: step.cardParts
        width: parent.width
        height: step.height > 1000 ? step.height / 4.06 : 200
    }
}
