pragma ComponentBehavior: Bound

import QtQuick
import NorvinFocus.Ui

/// A thin line that moves while something is awaited. Its room is always there, so that nothing jumps.
Item {
    id: root

    required property bool isShown

    implicitHeight: 2
    clip: true
    Accessible.role: Accessible.ProgressBar
    Accessible.name: root.isShown ? qsTrId("stats_waiting") : ""
    Accessible.ignored: !root.isShown

    Rectangle {
        anchors.fill: parent
        visible: root.isShown
        color: Theme.surfaceRaised
    }

    Rectangle {
        id: runner

        visible: root.isShown
        width: MotionPreference.isReduced ? parent.width : parent.width / 4
        height: parent.height
        color: Theme.accentBright

        NumberAnimation on x {
            running: root.isShown && root.visible && !MotionPreference.isReduced
            from: -runner.width
            to: root.width
            duration: 1200
            loops: Animation.Infinite
        }
    }
}
