pragma Singleton

import QtQuick
import Tessivo

// The looks that all screens share: an 8 point grid, one type scale, colours of the catalogue.
QtObject {
    property WindowItem window

    function named(name: string): color {
        return window ? window.color(name) : "transparent";
    }

    readonly property color backdrop: "#DDE1EA"
    readonly property bool highContrast: window ? window.highContrast : false
    readonly property color accent: named("button")
    readonly property color field: named("backText")
    readonly property color line: highContrast ? "#3A3D45" : named("Line")
    readonly property color muted: highContrast ? "#2B2E36" : named("disabled")
    readonly property color page: named("mainBack")
    readonly property color ink: "#15171C"
    readonly property color noPicture: "#5B6475"
    readonly property color textShadow: "#66000000" // of a text on a picture

    readonly property int margin: 16
    readonly property int touch: 44
    readonly property int rowHeight: 52 // at least: rows grow with their letters
    readonly property int radius: 16
    readonly property real textScale: window ? window.textScale : 1
    readonly property bool largeText: textScale > 1.2
    readonly property int caption: type(13)
    readonly property int body: type(17)
    readonly property int headline: type(20)

    // A size of letters as the user wants it. Large letters grow by no more than the text around them.
    function type(size: real): int {
        return scaledType(size, textScale);
    }
    function scaledType(size: real, scale: real): int {
        return Math.round(size + Math.min(size, 20) * (scale - 1));
    }

    readonly property int quick: 160
    readonly property int calm: 280
    readonly property bool large: window ? window.large : false
    readonly property bool keysInUse: window ? window.keysInUse : true
}
