pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import NorvinFocus.Ui

/// The tasks of the session: the field that adds them and the queue.
KeyboardScope {
    id: root

    required property DeepWorkScreen screen
    readonly property bool isEmpty: queue.count === 0

    wantsKeyboard: root.isEmpty
    onKeyboardGiven: field.forceActiveFocus(Qt.OtherFocusReason)

    ColumnLayout {
        anchors.fill: parent
        anchors.margins: Theme.gap5
        spacing: Theme.gap3

        RowLayout {
            Layout.fillWidth: true
            Layout.preferredHeight: Theme.controlHeightSmall
            spacing: Theme.gap2

            ThemedText {
                Layout.fillWidth: true
                text: qsTrId("tasks_title")
                font.pixelSize: Theme.title
                font.weight: Font.DemiBold
                Accessible.role: Accessible.Heading
            }

            ThemedText {
                text: root.screen.queue.taskCount > 0 ? qsTrId("tasks_count", root.screen.queue.taskCount) : ""
                color: Theme.textMuted
            }
        }

        TaskField {
            id: field

            Layout.fillWidth: true
            screen: root.screen
        }

        QueueList {
            id: queue

            Layout.fillWidth: true
            Layout.fillHeight: true
            screen: root.screen
            visible: !root.isEmpty
        }

        ThemedText {
            Layout.fillWidth: true
            visible: queue.activeFocus
            text: qsTrId("queue_keys_hint")
            color: Theme.textFaint
            font.pixelSize: Theme.caption
            wrapMode: Text.WordWrap
        }

        EmptyState {
            Layout.fillWidth: true
            Layout.fillHeight: true
            visible: root.isEmpty
            symbol: "checklist"
            title: qsTrId("queue_empty_title")
            message: qsTrId("queue_empty_subtitle")
        }
    }
}
