import QtQuick
import Tessivo

// The heading over a section's rows.
StyledLabel {
    required property CollectionItem rows

    anchors.left: parent.left
    anchors.right: parent.right
    anchors.leftMargin: Theme.margin + 4
    anchors.rightMargin: Theme.margin
    y: rows.y - height - 8
    horizontalAlignment: Text.AlignLeft
    Accessible.role: Accessible.Heading
}
