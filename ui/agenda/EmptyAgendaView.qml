pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import NorvinFocus.Ui

/// What stands where a day has no task: the ways to give it some.
FocusScope {
    id: root

    /// "quickAdd", "pickExisting", or empty for the one used last.
    signal planningAsked(string tab)

    implicitHeight: column.implicitHeight

    ColumnLayout {
        id: column

        anchors.centerIn: parent
        width: parent.width
        spacing: Theme.gap6

        EmptyState {
            Layout.fillWidth: true
            symbol: "calendar"
            title: qsTrId("nothing_planned")
            message: qsTrId("nothing_planned_subtitle")
        }

        RowLayout {
            Layout.alignment: Qt.AlignHCenter
            spacing: Theme.gap3

            PushButton {
                objectName: "emptyAddTask"
                implicitHeight: Theme.controlHeightLarge
                symbol: "plus"
                text: qsTrId("add_task")
                onClicked: root.planningAsked("quickAdd")
            }

            PushButton {
                objectName: "emptyPlanTask"
                implicitHeight: Theme.controlHeightLarge
                symbol: "folder.fill"
                text: qsTrId("plan_task")
                onClicked: root.planningAsked("pickExisting")
            }

            PushButton {
                objectName: "emptyAddToAgenda"
                kind: PushButton.Kind.Primary
                symbol: "plus.circle"
                text: qsTrId("add_to_my_agenda")
                onClicked: root.planningAsked("")
            }
        }
    }
}
