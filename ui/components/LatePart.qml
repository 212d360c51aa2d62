pragma ComponentBehavior: Bound

import QtQuick

/// A part that is there only at times. It is loaded from its file, so that the first picture of the window does not
/// wait for types that it does not show.
Loader {
    id: root

    required property bool wanted
    /// The whole address, see Qt.resolvedUrl().
    required property url file
    /// Gives the values of its properties that it is made with, asked for when it is wanted.
    required property var values

    function update(): void {
        if (root.wanted) {
            const values = root.values;
            root.setSource(root.file, values());
        } else {
            root.setSource("");
        }
    }

    visible: root.wanted

    Component.onCompleted: root.update()
    onWantedChanged: root.update()
}
