pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import NorvinFocus.Ui

/// A task or subtask of the queue in the panel.
Item {
    id: root

    required property int index
    required property string title
    required property int depth
    required property bool isDone
    required property bool isActive
    required property DeepWorkScreen screen
    readonly property bool isCurrent: root.ListView.isCurrentItem && root.ListView.view.activeFocus

    Accessible.role: Accessible.ListItem
    Accessible.name: root.isDone ? qsTrId("task_done_name").arg(root.title) : root.isActive ? qsTrId("task_active_name").arg(root.title) : root.title

    Rectangle {
        anchors.fill: parent
        anchors.topMargin: 1
        anchors.bottomMargin: 1
        radius: Theme.radiusSmall
        color: root.isActive && root.depth === 0 ? Theme.accentSurface : hover.hovered || root.isCurrent ? Theme.surfaceRaised : "transparent"

        HoverHandler {
            id: hover
        }

        TapHandler {
            onTapped: root.screen.makeActive(root.index)
        }

        RowLayout {
            anchors.fill: parent
            anchors.leftMargin: 20 * Math.min(root.depth, 3)
            anchors.rightMargin: Theme.gap3
            spacing: Theme.gap1

            CheckCircle {
                checked: root.isDone
                focusPolicy: Qt.NoFocus
                text: root.isDone ? qsTrId("task_reopen").arg(root.title) : qsTrId("task_tick").arg(root.title)
                onClicked: root.screen.toggleDone(root.index)
            }

            ThemedText {
                Layout.fillWidth: true
                text: root.title
                color: root.isDone ? Theme.textFaint : root.depth === 0 ? Theme.text : Theme.textMuted
                font.strikeout: root.isDone
                font.weight: root.isActive && root.depth === 0 ? Font.DemiBold : Font.Normal
                elide: Text.ElideRight
                Accessible.ignored: true
            }
        }

        FocusRing {
            shown: root.isCurrent
            distance: -1
        }
    }
}
