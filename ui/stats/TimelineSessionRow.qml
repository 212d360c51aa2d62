pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import NorvinFocus.Ui

/// One of today's sessions, on a line that leads to the next.
StatsButton {
    id: root

    required property string time
    required property string title
    required property bool hasTask
    required property string duration
    /// Empty without a score.
    required property string scoreText
    /// Whether no line leads on.
    required property bool isLast

    words: root.time + ", " + root.title + ", " + root.duration + (root.scoreText.length > 0 ? ", " + root.scoreText : "")
    implicitHeight: 48

    Rectangle {
        id: dot

        x: 96
        anchors.verticalCenter: parent.verticalCenter
        width: 10
        height: 10
        radius: 5
        color: root.scoreText.length > 0 ? Theme.accentBright : Theme.outline
    }

    Rectangle {
        visible: !root.isLast
        x: dot.x + 4
        y: dot.y + 14
        width: 2
        // To just above the dot of the next row.
        height: root.height - 18
        color: Theme.surfacePressed
    }

    RowLayout {
        anchors.fill: parent
        anchors.leftMargin: Theme.gap3
        anchors.rightMargin: Theme.gap3
        spacing: Theme.gap3

        ThemedText {
            Layout.preferredWidth: 72
            text: root.time
            color: Theme.textMuted
            Accessible.ignored: true
        }

        ThemedText {
            Layout.fillWidth: true
            Layout.leftMargin: Theme.gap6
            text: root.title
            color: root.hasTask ? Theme.text : Theme.textMuted
            elide: Text.ElideRight
            Accessible.ignored: true
        }

        ThemedText {
            Layout.preferredWidth: 84
            text: root.duration
            color: Theme.textMuted
            horizontalAlignment: Text.AlignRight
            Accessible.ignored: true
        }

        ScoreMark {
            scoreText: root.scoreText
        }
    }
}
