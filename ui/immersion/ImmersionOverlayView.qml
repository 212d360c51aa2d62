pragma ComponentBehavior: Bound

import QtQuick
import NorvinFocus.Ui

/// Bubbles that rise over the window while it is immersed. They take no clicks, and stand still nowhere that costs
/// anything: a window that nobody sees, or a desktop that asks for less motion.
Item {
    id: root

    required property ImmersionService service
    readonly property bool isSeen: root.Window.visibility !== Window.Hidden && root.Window.visibility !== Window.Minimized
    readonly property bool moves: root.service.effectiveDepth > 0 && root.isSeen && !MotionPreference.isReduced

    enabled: false
    visible: root.moves
    Accessible.ignored: true

    BubbleField {
        id: field

        objectName: "bubbleField"
        anchors.fill: parent
        depth: root.service.effectiveDepth
        color: Theme.bubble
    }

    Timer {
        objectName: "bubbleTimer"
        interval: 80
        repeat: true
        running: root.moves
        onTriggered: field.step(interval / 1000)
    }
}
