import QtQuick
import Tessivo

// A ring of dots that turns. It asks for frames only while it is seen turning.
Item {
    id: spinner

    required property ActivityItem activity
    property real side: 32
    property real turn: 0
    readonly property int dots: 8

    implicitWidth: side
    implicitHeight: side
    visible: activity.shown && activity.animating
    Accessible.role: Accessible.Animation
    Accessible.name: activity.accessibleName

    Repeater {
        model: spinner.dots
        Rectangle {
            required property int index
            readonly property real angle: 2 * Math.PI * index / spinner.dots
            readonly property real lag: (spinner.turn - index / spinner.dots + 1) % 1
            width: spinner.side / 6
            height: width
            radius: width / 2
            x: (spinner.width - width) / 2 + (spinner.side - width) / 2 * Math.sin(angle)
            y: (spinner.height - height) / 2 - (spinner.side - height) / 2 * Math.cos(angle)
            color: Theme.muted
            opacity: 1 - 0.85 * lag
            antialiasing: true
        }
    }
    NumberAnimation on turn {
        from: 0
        to: 1
        duration: 1000
        loops: Animation.Infinite
        running: spinner.visible
    }
}
