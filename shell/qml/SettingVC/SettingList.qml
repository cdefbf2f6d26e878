import QtQuick
import Tessivo

// The rows of one section, where the program places them on the page. The page decides how wide they are.
CollectionFlick {
    id: list

    Component.onCompleted: place()

    // No binding: reporting the size to the program reports the place again.
    function place() {
        y = collection.y;
        height = collection.contentHeight;
    }
    Connections {
        target: list.collection
        function onGeometryChanged() {
            list.place();
        }
        function onContentChanged() {
            list.place();
        }
    }
}
