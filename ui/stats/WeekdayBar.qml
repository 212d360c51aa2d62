pragma ComponentBehavior: Bound

import QtQuick
import NorvinFocus.Ui

/// One day of the week as a bar, as high as its share of the best of them.
Item {
    id: root

    required property string label
    required property real minutes
    required property real maxMinutes
    /// The minutes as they are written.
    required property string valueText
    /// Whether the bar comes up from the ground.
    property bool animate: false
    property bool isCurrent: false
    readonly property real share: root.maxMinutes > 0 ? root.minutes / root.maxMinutes : 0
    readonly property real room: root.height - 2 * 22

    ThemedText {
        anchors.horizontalCenter: parent.horizontalCenter
        y: bar.y - 20
        visible: root.minutes > 0
        text: root.valueText
        color: root.isCurrent ? Theme.text : Theme.textMuted
        font.pixelSize: Theme.caption
        Accessible.ignored: true
    }

    Rectangle {
        id: bar

        anchors.horizontalCenter: parent.horizontalCenter
        anchors.bottom: caption.top
        anchors.bottomMargin: 6
        width: Math.min(48, root.width * 0.6)
        height: Math.max(4, root.room * root.share)
        radius: Math.min(6, height / 2)
        color: root.minutes > 0 ? (root.isCurrent ? Theme.accentText : Theme.accentBright) : Theme.surfacePressed

        Behavior on height {
            enabled: root.animate

            NumberAnimation {
                duration: Theme.motion
                easing.type: Easing.OutCubic
            }
        }
    }

    ThemedText {
        id: caption

        anchors.horizontalCenter: parent.horizontalCenter
        anchors.bottom: parent.bottom
        text: root.label
        color: root.isCurrent ? Theme.text : Theme.textFaint
        font.pixelSize: Theme.caption
        Accessible.ignored: true
    }
}
