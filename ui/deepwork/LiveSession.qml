pragma ComponentBehavior: Bound

import QtQuick
import NorvinFocus.Ui

/// What of the session changes every second, for as long as somebody can see it. While `live` is off nothing
/// here depends on the session, so a hidden window does no work.
QtObject {
    id: root

    required property DeepWorkScreen source
    required property bool live

    readonly property string timeText: root.live ? root.source.timeText : "00:00"
    readonly property int minutes: root.live ? root.source.minutes : 0
    readonly property double progress: root.live ? root.source.progress : 0
    readonly property int legitimateSeconds: root.live ? root.source.legitimateSeconds : 0
    readonly property int distractedSeconds: root.live ? root.source.distractedSeconds : 0
    readonly property int inactivitySeconds: root.live ? root.source.inactivitySeconds : 0
    readonly property bool scoreHasEnoughData: root.live && root.source.scoreHasEnoughData
    readonly property double score: root.live ? root.source.score : 0
    readonly property double scoreRatio: root.live ? root.source.scoreRatio : 0
    readonly property double scoreRatioPoints: root.live ? root.source.scoreRatioPoints : 0
    readonly property double scoreInterruptionPenalty: root.live ? root.source.scoreInterruptionPenalty : 0
    readonly property double scoreBlockedAttemptsPenalty: root.live ? root.source.scoreBlockedAttemptsPenalty : 0
    readonly property double scoreBlockedSiteAttemptsPenalty: root.live ? root.source.scoreBlockedSiteAttemptsPenalty : 0
    readonly property double scoreCompletedTasksBonus: root.live ? root.source.scoreCompletedTasksBonus : 0
    readonly property double scoreCompletedSubtasksBonus: root.live ? root.source.scoreCompletedSubtasksBonus : 0
    readonly property int interruptionCount: root.live ? root.source.interruptionCount : 0
    readonly property int blockedAttemptsCount: root.live ? root.source.blockedAttemptsCount : 0
    readonly property int blockedSiteAttemptsCount: root.live ? root.source.blockedSiteAttemptsCount : 0
    readonly property int completedTasksCount: root.live ? root.source.completedTasksCount : 0
    readonly property int completedSubtasksCount: root.live ? root.source.completedSubtasksCount : 0
}
