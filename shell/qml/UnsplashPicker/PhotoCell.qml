import QtQuick
import Tessivo

// One photo of the grid: its tint until the picture is there, the photographer's name, and a mark once chosen.
CollectionCell {
    id: photo

    readonly property ViewItem photoView: cell.control("photoView")
    readonly property ImageItem imageView: cell.control("imageView") as ImageItem
    readonly property ViewItem gradientView: cell.control("gradientView")
    readonly property LabelItem userNameLabel: cell.control("userNameLabel") as LabelItem
    readonly property real rounding: width < list.width ? 12 : 0

    scale: cell.highlighted ? 0.98 : 1
    Accessible.name: photoView.accessibleName
    Accessible.selectable: true
    Accessible.selected: cell.selected
    Behavior on scale { NumberAnimation { duration: Theme.quick } }

    Item {
        anchors.fill: parent
        opacity: photo.photoView.alpha

        Rectangle {
            anchors.fill: parent
            color: photo.photoView.fill.color
        }
        PicturePaint {
            anchors.fill: parent
            view: photo.imageView
            opacity: photo.imageView.alpha
        }
        Rectangle {
            y: photo.gradientView.y
            width: parent.width
            height: photo.gradientView.height
            opacity: photo.gradientView.alpha
            gradient: Gradient {
                GradientStop { position: photo.gradientView.fill.start.y; color: photo.gradientView.fill.first }
                GradientStop { position: photo.gradientView.fill.end.y; color: photo.gradientView.fill.second }
            }
        }
        StyledLabel {
            label: photo.userNameLabel
            x: photo.userNameLabel.x
            y: photo.userNameLabel.y
            width: photo.userNameLabel.width
            height: photo.userNameLabel.height
            opacity: photo.userNameLabel.alpha
            verticalAlignment: Text.AlignVCenter
            Accessible.ignored: true
        }
    }
    // A frame in the page's colour rounds the photo: what lies on a picture is not clipped to its corners.
    Rectangle {
        readonly property real thickness: 6
        anchors.fill: parent
        anchors.margins: -thickness
        visible: photo.rounding > 0
        color: "transparent"
        border.color: Theme.page
        border.width: thickness
        radius: photo.rounding + thickness
    }
    PhotoMark { cell: photo.cell }
    FocusRing { target: photo; radius: photo.rounding + 3 }
}
