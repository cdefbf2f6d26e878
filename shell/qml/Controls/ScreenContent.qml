import QtQuick
import Tessivo

// Finds the drawing of a screen by its name, and loads it only when it is needed. A frame around a screen is drawn by
// what it holds.
FocusScope {
    id: content

    required property ScreenItem screen

    focus: true
    Loader {
        anchors.fill: parent
        focus: true
        Component.onCompleted: {
            const shown = content.screen instanceof NavigationItem ? (content.screen as NavigationItem).content
                                                                   : content.screen;
            setSource(shown.name + ".qml", { screen: shown });
        }
    }
}
