import QtQuick
import Tessivo

// The day, the time, the repeat and the unit of an event.
WizardFrame {
    id: step

    property string cardParts: "eventView." // before the names of the card's parts
    property string countName: "timeLabel"

    readonly property LabelItem timeField: screen.control("timeField") as LabelItem
    readonly property ButtonItem repeatButton: screen.control("repeatButton") as ButtonItem
    readonly property ViewItem contentView: screen.control("contentView")

    onTappedBeside: contentView.tap()

    SectionLabel { label: step.screen.control("dayLabel") as LabelItem }
    ValueRow {
        label: step.screen.control("dayField") as LabelItem
        heading: step.screen.control("dayLabel") as LabelItem
        width: parent.width
        focus: true
    }
    WheelPicker {
        picker: step.screen.control("datePicker") as DatePickerItem
        width: parent.width
        shares: [0.24, 0.46, 0.3]
    }
    SectionLabel { label: step.screen.control("timeLabel") as LabelItem }
    ValueRow {
        label: step.timeField
        heading: step.screen.control("timeLabel") as LabelItem
        width: parent.width
    }
    WheelPicker {
        picker: step.screen.control("timePicker") as DatePickerItem
        width: parent.width
    }
    Item { width: 1; height: 4 }
    SwitchRow {
        label: step.screen.control("switcherLabel") as LabelItem
        item: step.screen.control("toggleSwitch") as SwitchItem
        width: parent.width
    }
    SectionLabel { label: step.screen.control("repeatInfoLabel") as LabelItem }
    ValueRow {
        label: step.screen.control("repeatLapel") as LabelItem
        heading: step.screen.control("repeatInfoLabel") as LabelItem
        chevron: step.repeatButton
        width: parent.width
    }
    SectionLabel { label: step.screen.control("unitsLabel") as LabelItem }
    Segments {
        item: step.screen.control("segmentedControl") as SegmentedItem
        width: parent.width
    }
    Item { width: 1; height: 12 }
    PreviewCard {
        screen: step.screen
        parts: step.cardParts
        countName: step.countName
        width: parent.width
        height: step.height > 1000 ? step.height / 4.06 : 200
    }
}
