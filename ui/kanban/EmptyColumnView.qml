pragma ComponentBehavior: Bound

import QtQuick
import NorvinFocus.Ui

/// What a column without cards shows.
Rectangle {
    id: root

    /// "To Do", "In Progress" or "Done".
    required property string status
    required property color tint
    readonly property string symbol: root.status === "Done" ? "checkmark.circle.fill" : root.status === "In Progress" ? "play" : "circle"

    radius: Theme.radius
    color: "transparent"
    border.width: 1
    border.color: Theme.outline

    Column {
        anchors.centerIn: parent
        width: parent.width - 2 * Theme.gap4
        spacing: Theme.gap2

        Symbol {
            anchors.horizontalCenter: parent.horizontalCenter
            name: root.symbol
            color: root.tint
            size: 24
        }

        ThemedText {
            width: parent.width
            text: qsTrId("drop_task_here")
            color: Theme.textMuted
            horizontalAlignment: Text.AlignHCenter
            wrapMode: Text.WordWrap
        }
    }
}
