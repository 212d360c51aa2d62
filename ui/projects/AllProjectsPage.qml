pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import NorvinFocus.Ui

/// The projects, found, sorted, opened.
Page {
    id: root

    required property PlanningScreens planning
    readonly property AllProjectsView model: root.planning.projects
    readonly property bool isEmpty: root.model.projects.total === 0
    readonly property bool showsTiles: root.model.projects.count > 0

    function focusStart(): void {
        if (root.isEmpty)
            firstButton.forceActiveFocus(Qt.TabFocusReason);
        else if (root.showsTiles)
            grid.forceActiveFocus(Qt.TabFocusReason);
        else
            search.forceActiveFocus(Qt.TabFocusReason);
    }

    function askForDeletion(projectId: string, name: string): void {
        question.projectId = projectId;
        question.name = name;
        question.active = true;
    }

    maximumWidth: 1184
    heading: qsTrId("projects_title")
    introduction: root.isEmpty ? qsTrId("projects_subtitle") : qsTrId("projects_count_plural", root.model.projects.total)

    onEntered: {
        root.model.refresh();
        root.focusStart();
    }

    Keys.onPressed: event => {
        event.accepted = event.matches(StandardKey.New);
        if (event.accepted)
            root.model.createProject();
        else if (event.matches(StandardKey.Find) && !root.isEmpty) {
            event.accepted = true;
            search.forceActiveFocus(Qt.ShortcutFocusReason);
        }
    }

    headingContent: [
        ExchangeButtons {
            planning: root.planning
        },
        PushButton {
            objectName: "newProjectButton"
            kind: PushButton.Kind.Primary
            visible: !root.isEmpty
            symbol: "plus"
            text: qsTrId("project_new_button")
            onClicked: root.model.createProject()
        }
    ]

    Banner {
        objectName: "exchangeNotice"
        Layout.fillWidth: true
        visible: root.planning.exchange.noticeText.length > 0
        text: root.planning.exchange.noticeText
        symbol: root.planning.exchange.isNoticeProblem ? "exclamationmark.triangle" : "checkmark"
        foreground: root.planning.exchange.isNoticeProblem ? Theme.amber : Theme.legitimate
        color: root.planning.exchange.isNoticeProblem ? Theme.amberSurface : Theme.legitimateSurface
        isDismissible: true
        onDismissed: root.planning.exchange.dismissNotice()
    }

    RowLayout {
        visible: !root.isEmpty
        spacing: Theme.gap4

        EntryField {
            id: search

            objectName: "projectSearch"
            Layout.fillWidth: true
            symbol: "magnifyingglass"
            placeholderText: qsTrId("project_search_placeholder")
            text: root.model.searchText
            onTextEdited: root.model.searchText = search.text
            onAccepted: {
                if (root.showsTiles)
                    grid.forceActiveFocus(Qt.TabFocusReason);
            }

            Keys.onDownPressed: {
                if (root.showsTiles)
                    grid.forceActiveFocus(Qt.TabFocusReason);
            }
            Keys.onEscapePressed: event => {
                event.accepted = search.length > 0;
                root.model.searchText = "";
                search.clear();
            }
        }

        ThemedText {
            text: qsTrId("project_sort_label")
            color: Theme.textMuted
            Accessible.ignored: true
        }

        SegmentedChoice {
            objectName: "projectSort"
            name: qsTrId("project_sort_label")
            values: ["name", "created", "progress"]
            labels: [qsTrId("project_sort_name"), qsTrId("project_sort_created"), qsTrId("project_sort_progress")]
            value: root.model.sortBy
            onChosen: value => root.model.sortBy = value
        }
    }

    ProjectGrid {
        id: grid

        Layout.fillWidth: true
        Layout.fillHeight: true
        // The tiles have a margin of their own, so that the focus ring is not cut.
        Layout.leftMargin: -Theme.gap2
        Layout.rightMargin: -Theme.gap2
        visible: root.showsTiles
        screen: root.model
        onLeftUpwards: search.forceActiveFocus(Qt.BacktabFocusReason)
        onDeletionAsked: (projectId, name) => root.askForDeletion(projectId, name)
    }

    ColumnLayout {
        Layout.fillWidth: true
        Layout.fillHeight: true
        visible: !root.showsTiles
        spacing: Theme.gap6

        Item {
            Layout.fillHeight: true
        }

        EmptyState {
            Layout.fillWidth: true
            symbol: root.isEmpty ? "folder" : "magnifyingglass"
            title: root.isEmpty ? qsTrId("projects_empty_title") : qsTrId("projects_no_match_title")
            message: root.isEmpty ? qsTrId("projects_empty_subtitle") : qsTrId("projects_no_match_subtitle").arg(root.model.searchText.trim())
        }

        PushButton {
            id: firstButton

            objectName: "firstProjectButton"
            Layout.alignment: Qt.AlignHCenter
            visible: root.isEmpty
            kind: PushButton.Kind.Primary
            symbol: "plus"
            text: qsTrId("create_project_title")
            onClicked: root.model.createProject()
        }

        Item {
            Layout.fillHeight: true
            Layout.preferredHeight: 2
        }
    }

    Item {
        implicitHeight: 0
    }

    Deferred {
        id: question

        property string projectId: ""
        property string name: ""

        visible: false

        QuestionDialog {
            visible: true
            title: qsTrId("confirm_delete_project_title").arg(question.name)
            message: (root.model.consequencesOfDeletion(question.projectId) + " " + qsTrId("confirm_delete_project_message")).trim()
            acceptText: qsTrId("delete_button")
            rejectText: qsTrId("cancel_button")
            onAccepted: root.model.deleteProject(question.projectId)
            onClosed: {
                question.active = false;
                root.focusStart();
            }
        }
    }
}
