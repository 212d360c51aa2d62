pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import QtQuick.Templates as T
import NorvinFocus.Ui

/// All late tasks, over the page. Arrow keys go through them; Enter opens one, Space plans it for today. Open as long
/// as it is there.
T.Popup {
    id: root

    required property DailyAgendaView agenda
    required property LateTaskList tasks

    objectName: "lateTasks"
    parent: T.Overlay.overlay
    anchors.centerIn: parent
    modal: true
    focus: true
    visible: true
    padding: Theme.gap6
    implicitWidth: 720
    implicitHeight: Math.min(parent ? parent.height - 2 * Theme.gap10 : 640, Math.max(320, content.implicitHeight + list.contentHeight + 2 * Theme.gap6))
    closePolicy: T.Popup.CloseOnEscape | T.Popup.CloseOnPressOutside

    onOpened: list.forceActiveFocus(Qt.TabFocusReason)
    onClosed: root.agenda.showLateTasks = false

    T.Overlay.modal: Rectangle {
        color: Theme.shade
    }

    ColumnLayout {
        id: content

        anchors.fill: parent
        spacing: Theme.gap4
        Accessible.role: Accessible.Dialog
        Accessible.name: qsTrId("late_tasks_title")

        RowLayout {
            spacing: Theme.gap3

            ColumnLayout {
                spacing: Theme.gap1

                ThemedText {
                    Layout.fillWidth: true
                    text: qsTrId("late_tasks_title")
                    font.pixelSize: Theme.title
                    font.weight: Font.DemiBold
                    Accessible.role: Accessible.Heading
                }

                ThemedText {
                    Layout.fillWidth: true
                    text: qsTrId("late_tasks_subtitle")
                    color: Theme.textMuted
                    wrapMode: Text.WordWrap
                }
            }

            IconButton {
                Layout.alignment: Qt.AlignTop
                objectName: "lateTasksClose"
                symbol: "xmark"
                text: qsTrId("sheet_close_button")
                onClicked: root.close()
            }
        }

        ListView {
            id: list

            objectName: "lateTaskList"
            Layout.fillWidth: true
            Layout.fillHeight: true
            visible: list.count > 0
            clip: true
            spacing: 2
            activeFocusOnTab: true
            boundsBehavior: Flickable.StopAtBounds
            highlightMoveDuration: 0
            model: root.tasks
            Accessible.role: Accessible.List
            Accessible.name: qsTrId("late_tasks_title")

            T.ScrollBar.vertical: ScrollBarThin {}

            onActiveFocusChanged: {
                if (list.activeFocus && list.currentIndex < 0)
                    list.currentIndex = 0;
                else if (!list.activeFocus && list.currentItem)
                    list.currentItem.focus = true;
            }

            Keys.onPressed: event => {
                list.forceLayout();
                event.accepted = list.currentIndex >= 0;
                if (event.key === Qt.Key_Return || event.key === Qt.Key_Enter)
                    root.tasks.openAt(list.currentIndex);
                else if (event.key === Qt.Key_Space)
                    root.tasks.planForTodayAt(list.currentIndex);
                else
                    event.accepted = false;
            }

            delegate: LateTaskRow {
                id: row

                width: list.width - (list.contentHeight > list.height ? Theme.gap3 : 0)
                onOpened: {
                    list.currentIndex = row.index;
                    list.forceActiveFocus(Qt.MouseFocusReason);
                    root.tasks.openAt(row.index);
                }
                onPlannedForToday: {
                    list.forceActiveFocus(Qt.TabFocusReason);
                    root.tasks.planForTodayAt(row.index);
                }
                onDayAsked: root.tasks.askForDayAt(row.index)
            }
        }

        EmptyState {
            Layout.fillWidth: true
            Layout.fillHeight: true
            visible: list.count === 0
            symbol: "checkmark.circle.fill"
            title: qsTrId("late_tasks_none")
            message: ""
        }
    }

    Deferred {
        active: root.tasks?.asksForDay ?? false

        CalendarPopup {
            calendar: root.tasks.calendar
            title: qsTrId("plan_for_day_title").arg(root.tasks.titleToPlan)
            onClosed: root.tasks?.cancelDay()
        }
    }

    background: Rectangle {
        radius: Theme.radiusLarge
        color: Theme.surface
        border.width: 1
        border.color: Theme.outline
    }
}
