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
    Item { width: 1; height: 8 }
    SectionLabel { label: step.screen.control("colorsLabel") as LabelItem }
    SwatchStrip {
        collection: step.screen.control("colorCollection") as CollectionItem
        x: -Theme.margin
        width: step.width
    }
    Item { width: 1; height: 8 }
    SectionLabel { label: step.screen.control("gradientsLabel") as LabelItem }
    SwatchStrip {
        collection: step.screen.control("gradientCollection") as CollectionItem
        x: -Theme.margin
        width: step.width
    }
}
