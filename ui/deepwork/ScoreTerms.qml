pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import NorvinFocus.Ui

/// How the score comes about, term by term.
Card {
    id: root

    required property LiveSession session
    readonly property TextFormats formats: Localization.formats

    implicitHeight: column.implicitHeight + 2 * Theme.gap4

    ColumnLayout {
        id: column

        anchors.fill: parent
        anchors.margins: Theme.gap4
        anchors.leftMargin: Theme.gap5
        anchors.rightMargin: Theme.gap5
        spacing: Theme.gap1

        ScoreTerm {
            Layout.fillWidth: true
            label: qsTrId("score_term_ratio").arg(Math.round(root.session.scoreRatio * 100))
            value: root.formats.decimal(root.session.scoreRatioPoints)
        }

        ScoreTerm {
            Layout.fillWidth: true
            label: qsTrId("score_term_interruptions", root.session.interruptionCount)
            value: root.formats.signedDecimal(-root.session.scoreInterruptionPenalty)
        }

        ScoreTerm {
            Layout.fillWidth: true
            label: qsTrId("score_term_app_attempts", root.session.blockedAttemptsCount)
            value: root.formats.signedDecimal(-root.session.scoreBlockedAttemptsPenalty)
        }

        ScoreTerm {
            Layout.fillWidth: true
            label: qsTrId("score_term_site_attempts", root.session.blockedSiteAttemptsCount)
            value: root.formats.signedDecimal(-root.session.scoreBlockedSiteAttemptsPenalty)
        }

        ScoreTerm {
            Layout.fillWidth: true
            label: qsTrId("score_term_tasks", root.session.completedTasksCount)
            value: root.formats.signedDecimal(root.session.scoreCompletedTasksBonus)
        }

        ScoreTerm {
            Layout.fillWidth: true
            label: qsTrId("score_term_subtasks", root.session.completedSubtasksCount)
            value: root.formats.signedDecimal(root.session.scoreCompletedSubtasksBonus)
        }

        Rectangle {
            Layout.fillWidth: true
            Layout.topMargin: 2
            Layout.bottomMargin: 2
            implicitHeight: 1
            color: Theme.surfacePressed
        }

        ScoreTerm {
            Layout.fillWidth: true
            label: qsTrId("score_term_total")
            value: root.session.scoreHasEnoughData ? root.formats.decimal(root.session.score) : "–"
            isTotal: true
        }
    }
}
