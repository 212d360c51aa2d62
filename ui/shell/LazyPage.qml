pragma ComponentBehavior: Bound

import QtQuick
import NorvinFocus.Ui

/// A page that is built when it is first wanted, takes the keyboard each time it is, and then stays.
Loader {
    id: root

    required property bool wanted

    active: false

    onWantedChanged: {
        if (!root.wanted)
            return;
        root.active = true;
        (root.item as Page).enter();
    }
}
