pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import NorvinFocus.Ui

/// A scroll bar that is there only where something can be scrolled.
T.ScrollBar {
    id: root

    implicitWidth: 8
    padding: 1
    minimumSize: 0.08
    visible: root.size < 1
    // What scrolls follows the keyboard.
    Accessible.ignored: true

    contentItem: Rectangle {
        implicitWidth: 6
        radius: 3
        color: root.pressed ? Theme.textFaint : root.hovered ? Theme.outline : Theme.surfacePressed
    }
}
