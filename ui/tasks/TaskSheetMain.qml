pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import QtQuick.Templates as T
import NorvinFocus.Ui

/// The words of the task, its subtasks and its files.
FocusScope {
    id: root

    required property TaskSheet sheet
    readonly property bool hasTitle: title.text.trim().length > 0

    /// Enter was pressed in the title.
    signal accepted

    function focusTitle(): void {
        title.forceActiveFocus(Qt.TabFocusReason);
    }

    function commit(): void {
        pause.stop();
        // Setting one of them has the other shown as it is.
        const words = title.text;
        const notes = description.text;
        if (words.trim().length > 0)
            root.sheet.title = words;
        root.sheet.taskDescription = notes;
    }

    function follow(): void {
        if (!title.activeFocus)
            title.text = root.sheet.title;
        if (!description.activeFocus)
            description.text = root.sheet.taskDescription;
    }

    Component.onCompleted: {
        title.text = root.sheet.title;
        description.text = root.sheet.taskDescription;
    }

    Connections {
        target: root.sheet

        function onFieldsChanged(): void {
            root.follow();
        }

        function onPresentedChanged(): void {
            pause.stop();
            title.text = root.sheet.title;
            description.text = root.sheet.taskDescription;
        }
    }

    // Not every letter is worth a save.
    Timer {
        id: pause

        interval: 500
        onTriggered: root.commit()
    }

    Flickable {
        id: flick

        anchors.fill: parent
        anchors.margins: -Theme.gap1
        contentHeight: column.implicitHeight + 2 * Theme.gap1
        clip: true
        boundsBehavior: Flickable.StopAtBounds

        T.ScrollBar.vertical: ScrollBarThin {}

        ColumnLayout {
            id: column

            x: Theme.gap1
            y: Theme.gap1
            width: flick.width - 2 * Theme.gap1 - Theme.gap2
            spacing: Theme.gap5

            ColumnLayout {
                spacing: Theme.gap3

                EntryField {
                    id: title

                    objectName: "taskTitle"
                    Layout.fillWidth: true
                    implicitHeight: Theme.controlHeightLarge
                    focus: true
                    font.pixelSize: Theme.title
                    font.weight: Font.DemiBold
                    placeholderText: qsTrId("task_title_placeholder")
                    maximumLength: 500
                    onTextEdited: pause.restart()
                    onAccepted: {
                        root.commit();
                        root.accepted();
                    }
                    onActiveFocusChanged: {
                        if (title.activeFocus)
                            return;
                        root.commit();
                        title.text = root.sheet.title;
                    }
                }

                EntryArea {
                    id: description

                    objectName: "taskDescription"
                    Layout.fillWidth: true
                    Layout.preferredHeight: 104
                    placeholderText: qsTrId("task_description_placeholder")
                    onTextChanged: {
                        if (description.activeFocus)
                            pause.restart();
                    }
                    onActiveFocusChanged: {
                        if (!description.activeFocus)
                            root.commit();
                    }
                }
            }

            SubtaskSection {
                Layout.fillWidth: true
                visible: !root.sheet.isNew
                sheet: root.sheet
            }

            ResourceSection {
                Layout.fillWidth: true
                visible: !root.sheet.isNew
                sheet: root.sheet
                isDropTarget: drop.containsDrag
            }
        }
    }

    DropArea {
        id: drop

        objectName: "resourceDrop"
        anchors.fill: parent
        enabled: !root.sheet.isNew
        keys: ["text/uri-list"]
        onDropped: event => {
            root.sheet.attach(event.urls);
            // The file stays where it is: only where it lies is noted.
            event.accept(Qt.CopyAction);
        }
    }
}
