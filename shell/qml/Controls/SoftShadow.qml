import QtQuick
import Tessivo

// A soft shadow under a rounded rectangle, its parent.
ShadowPaint {
    anchors.fill: parent
    anchors.margins: -reach
    z: -1
}
