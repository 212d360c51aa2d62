pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import QtQuick.Templates as T
import NorvinFocus.Ui

/// The tab of one phase, or of all tasks.
T.TabButton {
    id: root

    required property int taskCount
    required property bool isChosen

    leftPadding: Theme.gap3
    rightPadding: Theme.gap3
    implicitWidth: Math.min(Math.ceil(implicitContentWidth), 260) + 2 * Theme.gap3
    implicitHeight: Theme.controlHeightSmall
    hoverEnabled: true
    focusPolicy: Qt.NoFocus
    Accessible.name: qsTrId("board_column_name").arg(root.text).arg(qsTrId("tasks_count_format", root.taskCount))
    Accessible.selected: root.isChosen
    checked: root.isChosen

    contentItem: RowLayout {
        spacing: Theme.gap2

        ThemedText {
            Layout.fillWidth: true
            text: root.text
            color: root.isChosen ? Theme.accentInk : root.hovered ? Theme.text : Theme.textMuted
            font.weight: root.isChosen ? Font.DemiBold : Font.Normal
            elide: Text.ElideRight
            Accessible.ignored: true
        }

        ThemedText {
            text: String(root.taskCount)
            color: root.isChosen ? Theme.accentInk : Theme.textFaint
            font.pixelSize: Theme.caption
            Accessible.ignored: true
        }
    }

    background: Rectangle {
        radius: Theme.radiusSmall
        color: root.isChosen ? Theme.accent : root.hovered ? Theme.surfaceHover : "transparent"
    }
}
