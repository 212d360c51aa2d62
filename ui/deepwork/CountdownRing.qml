pragma ComponentBehavior: Bound

import QtQuick
import NorvinFocus.Ui

/// The countdown: a ring that empties as the phase passes, with the time left inside it.
Item {
    id: root

    required property string timeText
    /// The same in whole minutes, for a screen reader: it would not get to the end of a second.
    required property int minutes
    /// Share of the phase that is over, 0 to 1.
    required property double progress
    required property color color
    /// What the time means, under the digits.
    required property string caption
    property string symbol: ""
    readonly property real thickness: Math.max(8, root.width / 28)

    Accessible.role: Accessible.ProgressBar
    Accessible.name: root.caption.length > 0 ? root.caption + ", " + Localization.formats.minutes(root.minutes) : Localization.formats.minutes(root.minutes)

    Ring {
        anchors.fill: parent
        share: 1 - root.progress
        thickness: root.thickness
        color: root.color
        trackColor: Theme.track
    }

    Symbol {
        anchors.horizontalCenter: parent.horizontalCenter
        y: root.height * 0.2
        visible: root.width >= 180
        name: root.symbol
        color: root.color
        size: Math.round(root.width / 10)
    }

    Digits {
        id: digits

        anchors.centerIn: parent
        text: root.timeText
        // "1440:00" must fit into the ring as "25:00" does.
        pixelSize: Math.round(root.width / Math.max(4.8, root.timeText.length * 0.95))
        Accessible.ignored: true
    }

    ThemedText {
        anchors.horizontalCenter: parent.horizontalCenter
        anchors.top: digits.bottom
        anchors.topMargin: Theme.gap1
        width: root.width * 0.66
        horizontalAlignment: Text.AlignHCenter
        wrapMode: Text.WordWrap
        text: root.caption
        color: Theme.textMuted
        Accessible.ignored: true
    }
}
