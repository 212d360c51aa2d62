pragma ComponentBehavior: Bound

import QtQuick
import NorvinFocus.Ui

/// A page that is built when it is first wanted, takes the keyboard each time it is, and then stays.
Deferred {
    id: root

    required property bool wanted

    fillsHeight: true

    onWantedChanged: {
        if (!root.wanted)
            return;
        root.active = true;
        (root.item as Page).enter();
    }
}
