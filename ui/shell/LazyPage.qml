pragma ComponentBehavior: Bound

import QtQuick
import NorvinFocus.Ui

/// A page that is loaded when it is first wanted, takes the keyboard each time it is, and then stays.
Loader {
    id: root

    required property bool wanted
    required property string file
    /// What the page shows.
    required property QtObject model

    onWantedChanged: {
        if (!root.wanted)
            return;
        if (!root.item)
            root.setSource(root.file, {
                model: root.model
            });
        (root.item as Page).enter();
    }
}
