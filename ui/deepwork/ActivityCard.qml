pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import NorvinFocus.Ui

/// What is being measured right now, or why nothing is.
Card {
    id: root

    required property DeepWorkScreen screen
    readonly property bool isPaused: root.screen.state === "paused"
    readonly property bool isMeasured: !root.isPaused && root.screen.isTrackingActive
    readonly property bool isBlind: root.isMeasured && root.screen.blindReasonKey.length > 0
    readonly property string kind: root.isMeasured ? root.screen.activityKind : "idle"
    readonly property color kindColor: root.kind === "legitimate" ? Theme.legitimate : root.kind === "distracted" ? Theme.distracted : Theme.textFaint

    function headline(): string {
        if (root.isPaused)
            return qsTrId("activity_paused_title");
        if (!root.isMeasured)
            return qsTrId("activity_unmeasured_title");
        if (root.isBlind)
            return qsTrId(root.screen.blindReasonKey);
        return root.kind === "idle" ? qsTrId("activity_idle_title") : root.screen.activityAppName;
    }

    function explanation(): string {
        if (root.isPaused)
            return qsTrId("activity_paused_subtitle");
        if (!root.isMeasured)
            return qsTrId("activity_unmeasured_subtitle");
        if (root.isBlind)
            return qsTrId(root.screen.blindReasonKey + "_remedy");
        return root.kind === "idle" ? qsTrId("activity_idle_subtitle") : root.screen.activityDomain;
    }

    implicitHeight: Math.max(row.implicitHeight + 2 * Theme.gap3, 72)
    color: root.kind === "legitimate" ? Theme.legitimateSurface : root.kind === "distracted" ? Theme.distractedSurface : Theme.surface
    Accessible.role: Accessible.Grouping
    Accessible.name: qsTrId("activity_label")

    RowLayout {
        id: row

        anchors.fill: parent
        anchors.leftMargin: Theme.gap5
        anchors.rightMargin: Theme.gap5
        anchors.topMargin: Theme.gap3
        anchors.bottomMargin: Theme.gap3
        spacing: Theme.gap4

        Rectangle {
            implicitWidth: 10
            implicitHeight: 10
            radius: 5
            color: root.kindColor
        }

        ColumnLayout {
            Layout.fillWidth: true
            spacing: 2

            ThemedText {
                Layout.fillWidth: true
                text: root.headline()
                font.pixelSize: Theme.bodyLarge
                font.weight: Font.DemiBold
                wrapMode: Text.Wrap
                maximumLineCount: root.isBlind ? 2 : 1
                elide: Text.ElideRight
            }

            ThemedText {
                Layout.fillWidth: true
                visible: text.length > 0
                text: root.explanation()
                color: Theme.textMuted
                wrapMode: Text.Wrap
                maximumLineCount: 3
                elide: Text.ElideRight
            }
        }

        ThemedText {
            visible: root.kind !== "idle"
            text: root.kind === "legitimate" ? qsTrId("activity_legitimate") : qsTrId("activity_distracted")
            color: root.kindColor
            font.weight: Font.DemiBold
        }
    }
}
