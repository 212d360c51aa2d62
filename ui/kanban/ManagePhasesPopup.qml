pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import QtQuick.Templates as T
import NorvinFocus.Ui

/// The sheet that manages a project's phases, over the board. It is there as long as the board wants it.
T.Popup {
    id: root

    required property KanbanBoardView board
    readonly property ManagePhasesSheet sheet: root.board.phaseSheet

    function leave(): void {
        root.close();
        root.board.showManagePhases = false;
    }

    function askForDeletion(row: int): void {
        question.row = row;
        question.consequences = root.sheet.consequencesOfDeletion([row]);
        question.name = (list.itemAtIndex(row) as ManagePhaseRow)?.name ?? "";
        if (question.consequences.length > 0)
            question.active = true;
        else
            root.deletePhase(row);
    }

    function deletePhase(row: int): void {
        root.sheet.deletePhase([row]);
        if (list.count > 0)
            list.goTo(row);
        else
            entry.takeKeyboard();
    }

    objectName: "managePhases"
    parent: T.Overlay.overlay
    anchors.centerIn: parent
    modal: true
    focus: true
    visible: true
    padding: Theme.gap6
    implicitWidth: 520
    implicitHeight: Math.min(parent ? parent.height - 2 * Theme.gap6 : 560, 560)
    closePolicy: T.Popup.CloseOnPressOutside

    onOpened: entry.takeKeyboard()
    onClosed: root.leave()

    T.Overlay.modal: Rectangle {
        color: Theme.shade
    }

    FocusScope {
        anchors.fill: parent
        focus: true
        Accessible.role: Accessible.Dialog
        Accessible.name: qsTrId("manage_phases_title")

        Keys.onEscapePressed: root.leave()
        Keys.onPressed: event => {
            event.accepted = event.matches(StandardKey.Undo);
            if (event.accepted)
                root.sheet.undo();
        }

        ColumnLayout {
            anchors.fill: parent
            spacing: Theme.gap4

            ManagePhasesEntry {
                id: entry

                sheet: root.sheet
                onLeftDownwards: {
                    if (list.count > 0)
                        list.goTo(0);
                }
            }

            ManagePhasesList {
                id: list

                Layout.fillWidth: true
                Layout.fillHeight: true
                visible: list.count > 0
                sheet: root.sheet
                onDeletionAsked: row => root.askForDeletion(row)
            }

            EmptyState {
                Layout.fillWidth: true
                Layout.fillHeight: true
                visible: list.count === 0
                symbol: "rectangle.split.3x1"
                title: qsTrId("manage_phases_empty_title")
                message: qsTrId("manage_phases_empty_subtitle")
            }

            PushButton {
                objectName: "phasesDone"
                Layout.alignment: Qt.AlignRight
                kind: PushButton.Kind.Primary
                text: qsTrId("sheet_done_button")
                onClicked: root.leave()
            }
        }
    }

    Deferred {
        id: question

        property int row: -1
        property string name: ""
        property string consequences: ""

        QuestionDialog {
            objectName: "deletePhaseQuestion"
            visible: true
            title: qsTrId("confirm_delete_phase_title").arg(question.name)
            message: question.consequences
            acceptText: qsTrId("delete_button")
            rejectText: qsTrId("cancel_button")
            onAccepted: root.deletePhase(question.row)
            onClosed: {
                question.active = false;
                list.goTo(question.row);
            }
        }
    }

    background: Rectangle {
        radius: Theme.radiusLarge
        color: Theme.surface
        border.width: 1
        border.color: Theme.outline
    }
}
