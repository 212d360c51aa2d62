pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import NorvinFocus.Ui

/// The day's header: how many of its tasks are done. None that it shows is, so the bar is empty.
ColumnLayout {
    id: root

    required property FilteredTaskList tasks

    spacing: Theme.gap2

    RowLayout {
        ThemedText {
            Layout.fillWidth: true
            text: qsTrId("daily_objectives")
            font.weight: Font.DemiBold
            Accessible.role: Accessible.Heading
        }

        ThemedText {
            objectName: "dayProgress"
            text: root.tasks.progressText
            color: Theme.textMuted
        }
    }

    Rectangle {
        Layout.fillWidth: true
        implicitHeight: 4
        radius: 2
        color: Theme.track
    }
}
