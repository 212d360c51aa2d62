pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import NorvinFocus.Ui

/// The focus sessions spent on the task.
ColumnLayout {
    id: root

    required property TaskSessionListModel sessions

    spacing: Theme.gap2

    ThemedText {
        Layout.fillWidth: true
        text: qsTrId("task_sessions_title")
        color: Theme.textMuted
        font.pixelSize: Theme.caption
        Accessible.role: Accessible.Heading
    }

    ThemedText {
        Layout.fillWidth: true
        text: root.sessions.count > 0 ? qsTrId("task_sessions_total", root.sessions.count).arg(Localization.formats.minutes(root.sessions.totalMinutes)) : qsTrId("task_sessions_none")
        color: root.sessions.count > 0 ? Theme.text : Theme.textFaint
        wrapMode: Text.WordWrap
    }

    ListView {
        id: list

        objectName: "taskSessions"
        Layout.fillWidth: true
        implicitHeight: Math.min(contentHeight, 180)
        visible: list.count > 0
        clip: true
        activeFocusOnTab: true
        boundsBehavior: Flickable.StopAtBounds
        model: root.sessions
        Accessible.role: Accessible.List
        Accessible.name: qsTrId("task_sessions_title")

        delegate: RowLayout {
            id: row

            required property int index
            required property date startTime
            required property int minutes
            required property bool hasScore
            required property real score
            readonly property string when: Localization.formats.dateTime(row.startTime)

            width: list.width
            height: 28
            spacing: Theme.gap2
            Accessible.role: Accessible.ListItem
            Accessible.name: row.when + ", " + length.text

            ThemedText {
                Layout.fillWidth: true
                text: row.when
                color: row.ListView.isCurrentItem && list.activeFocus ? Theme.accentText : Theme.textMuted
                font.pixelSize: Theme.caption
                elide: Text.ElideRight
            }

            ThemedText {
                id: length

                text: Localization.formats.minutes(row.minutes)
                font.pixelSize: Theme.caption
            }

            ThemedText {
                Layout.preferredWidth: 28
                text: row.hasScore ? Localization.formats.decimal(row.score) : "–"
                color: Theme.accentText
                font.pixelSize: Theme.caption
                horizontalAlignment: Text.AlignRight
            }
        }
    }
}
