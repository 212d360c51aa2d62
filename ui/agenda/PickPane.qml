pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import QtQuick.Templates as T
import NorvinFocus.Ui

/// Tasks that are there already, to tick several of them for the day. From the search the arrow keys lead into the
/// list; Space or Enter ticks, Control+Enter plans what is ticked.
FocusScope {
    id: root

    required property AgendaPlanningSheet sheet
    readonly property TaskPickList list: root.sheet.pickList

    signal planned

    function focusStart(): void {
        search.forceActiveFocus(Qt.TabFocusReason);
    }

    function plan(): void {
        if (root.sheet.planTicked())
            root.planned();
    }

    Keys.onPressed: event => {
        event.accepted = (event.key === Qt.Key_Return || event.key === Qt.Key_Enter) && (event.modifiers & Qt.ControlModifier);
        if (event.accepted)
            root.plan();
    }

    ColumnLayout {
        anchors.fill: parent
        spacing: Theme.gap3

        RowLayout {
            spacing: Theme.gap3

            EntryField {
                id: search

                objectName: "pickSearch"
                Layout.fillWidth: true
                focus: true
                symbol: "magnifyingglass"
                placeholderText: qsTrId("pick_search_placeholder")
                onTextEdited: root.list.searchText = search.text

                Keys.onDownPressed: {
                    if (rows.count > 0)
                        rows.forceActiveFocus(Qt.TabFocusReason);
                }
                Keys.onEscapePressed: event => {
                    event.accepted = search.length > 0;
                    root.list.searchText = "";
                }

                Binding {
                    target: search
                    property: "text"
                    value: root.list.searchText
                }
            }

            ChoiceBox {
                objectName: "pickProject"
                Layout.preferredWidth: 220
                name: qsTrId("task_project_label")
                model: root.list.projects
                chosenId: root.list.projectId
                onChosen: choiceId => root.list.projectId = choiceId
            }
        }

        ListView {
            id: rows

            objectName: "pickList"
            Layout.fillWidth: true
            Layout.fillHeight: true
            visible: rows.count > 0
            clip: true
            spacing: 2
            activeFocusOnTab: true
            boundsBehavior: Flickable.StopAtBounds
            highlightMoveDuration: 0
            reuseItems: true
            model: root.list
            Accessible.role: Accessible.List
            Accessible.name: qsTrId("pick_list_name")

            T.ScrollBar.vertical: ScrollBarThin {}

            onActiveFocusChanged: {
                if (rows.activeFocus && rows.currentIndex < 0)
                    rows.currentIndex = 0;
            }

            Keys.onPressed: event => {
                const ticks = (event.key === Qt.Key_Space || event.key === Qt.Key_Return || event.key === Qt.Key_Enter) && !(event.modifiers & Qt.ControlModifier);
                event.accepted = true;
                if (ticks)
                    root.list.toggle(rows.currentIndex);
                else if (event.key === Qt.Key_Up && rows.currentIndex === 0)
                    root.focusStart();
                else if (event.key === Qt.Key_PageDown || event.key === Qt.Key_PageUp)
                    rows.currentIndex = Math.max(0, Math.min(rows.count - 1, rows.currentIndex + (event.key === Qt.Key_PageDown ? 8 : -8)));
                else
                    event.accepted = false;
            }

            delegate: PickRow {
                id: row

                width: rows.width - (rows.contentHeight > rows.height ? Theme.gap3 : 0)
                onToggled: {
                    rows.currentIndex = row.index;
                    rows.forceActiveFocus(Qt.MouseFocusReason);
                    root.list.toggle(row.index);
                }
            }
        }

        EmptyState {
            Layout.fillWidth: true
            Layout.fillHeight: true
            visible: rows.count === 0
            symbol: "checklist"
            title: root.list.total === 0 ? qsTrId("pick_no_tasks") : qsTrId("pick_nothing_found")
            message: ""
        }

        RowLayout {
            spacing: Theme.gap3

            ThemedText {
                Layout.fillWidth: true
                text: qsTrId("pick_count", rows.count)
                color: Theme.textMuted
            }

            PushButton {
                objectName: "pickPlan"
                kind: PushButton.Kind.Primary
                symbol: "calendar"
                enabled: root.list.tickedCount > 0
                text: root.list.tickedCount > 0 ? qsTrId("pick_plan_button", root.list.tickedCount) : qsTrId("pick_none_button")
                onClicked: root.plan()
            }
        }
    }
}
