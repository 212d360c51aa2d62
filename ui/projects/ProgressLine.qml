pragma ComponentBehavior: Bound

import QtQuick
import NorvinFocus.Ui

/// How far something is, as a line. Whoever shows it says it to a screen reader.
Rectangle {
    id: root

    /// 0 to 1.
    required property real progress
    required property color fill

    implicitHeight: 6
    implicitWidth: 120
    radius: height / 2
    color: Theme.surfacePressed

    Rectangle {
        visible: root.progress > 0
        width: Math.max(parent.height, parent.width * root.progress)
        height: parent.height
        radius: parent.radius
        color: root.fill
    }
}
