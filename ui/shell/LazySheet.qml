pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import NorvinFocus.Ui

/// A sheet or bar that is loaded while it is wanted.
Loader {
    id: root

    required property bool wanted
    required property string file
    /// What is shown.
    required property QtObject model

    function follow(): void {
        if (root.wanted) {
            root.setSource(root.file, {
                model: root.model
            });
        } else {
            // Closing gives the keyboard back to where it came from.
            (root.item as T.Popup)?.close();
            root.setSource("");
        }
    }

    onWantedChanged: root.follow()
    Component.onCompleted: root.follow()
}
