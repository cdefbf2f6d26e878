import QtQuick
import Tessivo

// The background of a new event.
WizardFrame {
    id: step

    SectionLabel { label: step.screen.control("previewLabel") as LabelItem }
    PreviewCard {
        screen: step.screen
        width: parent.width
        height: step.height > 1000 ? step.height / 4.06 : 200
    }
    SectionLabel { label: step.screen.control("photosLabel") as LabelItem }
    ChevronRow {
        button: step.screen.control("photosButton") as ButtonItem
        width: parent.width
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
