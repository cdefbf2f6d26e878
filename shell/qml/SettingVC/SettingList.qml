import QtQuick
import Tessivo

// The rows of one section, where the program places them on the page. How wide they are is the page's.
CollectionFlick {
    id: list

    Accessible.name: collection.accessibleName
    Component.onCompleted: place()

    // No binding: the place is told anew while the program is being told the size.
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
