pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import NorvinFocus.Ui

/// Where tasks are typed or picked. Enter makes a task of the text, or takes the suggestion that the arrow
/// keys went to; Escape closes the suggestions.
EntryField {
    id: root

    required property DeepWorkScreen screen
    readonly property bool hasText: root.text.trim().length > 0

    function openSuggestions(): void {
        root.screen.picker.filterText = root.text;
        suggestions.currentIndex = -1;
        if (root.hasText || root.screen.picker.count > 0)
            popup.open();
        else
            popup.close();
    }

    function pick(taskId: string): void {
        root.screen.addExistingTask(taskId);
        root.clear();
        popup.close();
    }

    function acceptText(): void {
        if (root.screen.addTask(root.text))
            root.clear();
        popup.close();
    }

    objectName: "taskField"
    symbol: "plus"
    placeholderText: qsTrId("task_field_placeholder")
    maximumLength: 500

    onTextEdited: root.openSuggestions()
    onPressed: root.openSuggestions()
    onActiveFocusChanged: {
        if (!root.activeFocus)
            popup.close();
    }
    onAccepted: {
        const item = suggestions.currentItem as SuggestionRow;
        if (popup.visible && item)
            root.pick(item.taskId);
        else
            root.acceptText();
    }

    Keys.onDownPressed: {
        if (!popup.visible)
            root.openSuggestions();
        suggestions.incrementCurrentIndex();
    }
    Keys.onUpPressed: suggestions.currentIndex = Math.max(suggestions.currentIndex - 1, -1)
    Keys.onEscapePressed: event => {
        event.accepted = popup.visible || root.text.length > 0;
        if (popup.visible)
            popup.close();
        else
            root.clear();
    }

    T.Popup {
        id: popup

        objectName: "suggestions"
        y: root.height + Theme.gap1
        width: root.width
        implicitHeight: choices.implicitHeight + topPadding + bottomPadding
        padding: Theme.gap1
        closePolicy: T.Popup.CloseOnPressOutsideParent
        visible: false

        Column {
            id: choices

            width: popup.availableWidth
            SuggestionHint {
                width: parent.width
                visible: root.hasText
                text: qsTrId("task_create_hint").arg(root.text.trim())
                isCurrent: suggestions.currentIndex < 0
                onClicked: root.acceptText()
            }

            ListView {
                id: suggestions

                width: parent.width
                implicitHeight: contentHeight
                interactive: false
                currentIndex: -1
                highlightMoveDuration: 0
                model: root.screen.picker
                Accessible.role: Accessible.List
                Accessible.name: qsTrId("task_suggestions")

                delegate: SuggestionRow {
                    width: suggestions.width
                    onChosen: taskId => root.pick(taskId)
                }
            }
        }

        background: Rectangle {
            radius: Theme.radius
            color: Theme.surfaceHover
        }
    }
}
