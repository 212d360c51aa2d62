pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import QtQuick.Templates as T
import NorvinFocus.Ui

/// The choice of another task for a session. From the search the arrow keys lead into the list; Enter chooses.
FocusScope {
    id: root

    required property SessionTaskList tasks

    signal chosen(int row)

    function focusStart(): void {
        search.forceActiveFocus(Qt.TabFocusReason);
    }

    ColumnLayout {
        anchors.fill: parent
        spacing: Theme.gap3

        EntryField {
            id: search

            objectName: "sessionTaskSearch"
            Layout.fillWidth: true
            symbol: "magnifyingglass"
            placeholderText: qsTrId("session_task_search_placeholder")
            onTextEdited: root.tasks.searchText = search.text
            onAccepted: {
                if (list.count > 0)
                    root.chosen(0);
            }

            Keys.onDownPressed: {
                if (list.count > 0)
                    list.forceActiveFocus(Qt.TabFocusReason);
            }
            Keys.onEscapePressed: event => {
                event.accepted = search.length > 0;
                root.tasks.searchText = "";
            }

            Binding {
                target: search
                property: "text"
                value: root.tasks?.searchText ?? ""
            }
        }

        ListView {
            id: list

            objectName: "sessionTaskList"
            Layout.fillWidth: true
            Layout.fillHeight: true
            visible: list.count > 0
            clip: true
            spacing: 2
            activeFocusOnTab: true
            boundsBehavior: Flickable.StopAtBounds
            highlightMoveDuration: 0
            reuseItems: true
            model: root.tasks
            Accessible.role: Accessible.List
            Accessible.name: qsTrId("session_task_title")

            T.ScrollBar.vertical: ScrollBarThin {}

            onActiveFocusChanged: {
                if (list.activeFocus && list.currentIndex < 0)
                    list.currentIndex = 0;
            }

            Keys.onPressed: event => {
                event.accepted = true;
                if (event.key === Qt.Key_Return || event.key === Qt.Key_Enter || event.key === Qt.Key_Space)
                    root.chosen(list.currentIndex);
                else if (event.key === Qt.Key_Up && list.currentIndex === 0)
                    root.focusStart();
                else if (event.key === Qt.Key_PageDown || event.key === Qt.Key_PageUp)
                    list.currentIndex = Math.max(0, Math.min(list.count - 1, list.currentIndex + (event.key === Qt.Key_PageDown ? 8 : -8)));
                else
                    event.accepted = false;
            }

            delegate: SessionDetailTaskRow {
                id: row

                width: list.width - (list.contentHeight > list.height ? Theme.gap3 : 0)
                onChosen: root.chosen(row.index)
            }
        }

        EmptyState {
            Layout.fillWidth: true
            Layout.fillHeight: true
            visible: list.count === 0
            symbol: "checklist"
            title: qsTrId("session_task_nothing_found")
            message: ""
        }
    }
}
