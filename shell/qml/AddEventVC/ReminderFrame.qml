import QtQuick
import Tessivo

// Whether an event reminds, when, and in what words.
WizardFrame {
    id: step

    SectionLabel { label: step.screen.control("reminderInfoLabel") as LabelItem }
    SwitchRow {
        label: step.screen.control("reminderLabel") as LabelItem
        item: step.screen.control("toggleSwitch") as SwitchItem
        width: parent.width
        comesFirst: true
    }
    SectionLabel { label: step.screen.control("alertInfoLabel") as LabelItem }
    ValueRow {
        label: step.screen.control("alertlabel") as LabelItem
        heading: step.screen.control("alertInfoLabel") as LabelItem
        chevron: step.screen.control("alertButton") as ButtonItem
        width: parent.width
    }
    SectionLabel { label: step.screen.control("repeatInfoLabel") as LabelItem }
    ValueRow {
        label: step.screen.control("repeatLabel") as LabelItem
        heading: step.screen.control("repeatInfoLabel") as LabelItem
        chevron: step.screen.control("repeatButton") as ButtonItem
        width: parent.width
    }
    StyledLabel {
        label: step.screen.control("CountLabel") as LabelItem
        x: 4
        topPadding: 10
        width: parent.width - 8
    }
    MessageBox {
        input: step.screen.control("reminderMess") as TextInputItem
        width: parent.width
    }
}
