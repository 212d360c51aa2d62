pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import NorvinFocus.Ui

/// One of the sessions of the past.
StatsButton {
    id: root

    required property string date
    required property string time
    required property string title
    required property bool hasTask
    required property string duration
    /// Empty without a score.
    required property string scoreText

    words: root.date + ", " + root.time + ", " + root.title + ", " + root.duration + (root.scoreText.length > 0 ? ", " + root.scoreText : "")
    implicitHeight: 44

    RowLayout {
        anchors.fill: parent
        anchors.leftMargin: Theme.gap3
        anchors.rightMargin: Theme.gap3
        spacing: Theme.gap3

        ThemedText {
            Layout.preferredWidth: 86
            text: root.date
            color: Theme.textMuted
            Accessible.ignored: true
        }

        ThemedText {
            Layout.preferredWidth: 72
            text: root.time
            color: Theme.textFaint
            Accessible.ignored: true
        }

        ThemedText {
            Layout.fillWidth: true
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
