import QtQuick
import Tessivo

// The small heading over a row.
StyledLabel {
    x: 4
    width: parent.width - 8
    topPadding: 10
    font.pixelSize: Theme.caption + 1
    font.weight: Font.Medium
}
