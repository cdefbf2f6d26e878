import QtQuick
import Tessivo

// The background of an event.
WizardFrame {
    id: step

    property string cardParts: "eventView." // before the names of the card's parts

    SectionLabel { label: step.screen.control("previewLabel") as LabelItem }
    PreviewCard {
        screen: step.screen
        parts: step.cardParts
        width: parent.width
        height: step.height > 1000 ? step.height / 4.06 : 200
    }
    SectionLabel { label: step.screen.control("photosLabel") as LabelItem }
    ChevronRow {
        button: step.screen.control("photosButton") as ButtonItem
        width: parent.width
        focus: true
    }
    SectionLabel { label: step.screen.control("imagesLabel") as LabelItem }
    ChevronRow {
        button: step.screen.control("imagesButton") as ButtonItem
        width: parent.width
    }
    SectionLabel { label: step.screen.control("colorsLabel") as LabelItem }
    SwatchStrip {
        collection: step.screen.control("colorCollection") as CollectionItem
        x: -Theme.margin
        width: step.width
    }
    SectionLabel { label: step.screen.control("gradientsLabel") as LabelItem }
    SwatchStrip {
        collection: step.screen.control("gradientCollection") as CollectionItem
        x: -Theme.margin
        width: step.width
    }
}
