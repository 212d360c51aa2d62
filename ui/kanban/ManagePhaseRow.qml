pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import NorvinFocus.Ui

/// A phase in the sheet that manages them.
Item {
    id: root

    required property int index
    required property string phaseId
    required property string name
    required property int taskCount
    required property int count
    required property ManagePhasesSheet sheet
    readonly property bool isCurrent: root.ListView.isCurrentItem && root.ListView.view.activeFocus
    readonly property bool isReached: hover.hovered || root.isCurrent
    readonly property bool isEditing: root.sheet.editingPhaseId === root.phaseId

    signal pressed(int row)
    signal deletionAsked(int row)
    signal moved(int row, int rows)
    /// The renaming is over.
    signal exited(int row)

    implicitHeight: Theme.controlHeight + Theme.gap1
    z: handle.pressed ? 2 : 0
    Accessible.role: Accessible.ListItem
    Accessible.name: qsTrId("board_column_name").arg(root.name).arg(qsTrId("tasks_count_format", root.taskCount))

    Rectangle {
        width: parent.width
        height: Theme.controlHeight
        radius: Theme.radius
        color: handle.pressed ? Theme.surfacePressed : root.isReached ? Theme.surfaceHover : Theme.surfaceRaised
        transform: Translate {
            y: handle.offset
        }

        HoverHandler {
            id: hover
        }

        MouseArea {
            anchors.fill: parent
            onPressed: root.pressed(root.index)
            onDoubleClicked: root.sheet.beginEdit(root.phaseId)
        }

        RowLayout {
            anchors.fill: parent
            anchors.leftMargin: Theme.gap1
            anchors.rightMargin: Theme.gap1
            spacing: Theme.gap1

            RowDragArea {
                id: handle

                Layout.fillHeight: true
                implicitWidth: 28
                hoverEnabled: true
                enabled: root.count > 1 && !root.isEditing
                opacity: enabled ? 1 : 0.35
                rowHeight: root.height
                content: root.ListView.view.contentItem
                onDropped: rows => root.moved(root.index, rows)
            }

            ThemedText {
                Layout.fillWidth: true
                visible: !root.isEditing
                text: root.name
                elide: Text.ElideRight
                Accessible.ignored: true
            }

            Deferred {
                Layout.fillWidth: true
                active: root.isEditing
                visible: root.isEditing

                InlineField {
                    id: field

                    objectName: "phaseEdit"
                    initialText: root.sheet.editingName
                    maximumLength: 120
                    placeholderText: qsTrId("phase_name_label")
                    onTextEdited: root.sheet.editingName = field.text
                    onAcceptedText: {
                        root.sheet.saveEdit(root.phaseId);
                        root.exited(root.index);
                    }
                    onExited: {
                        root.sheet.cancelEdit();
                        root.exited(root.index);
                    }
                    // Going elsewhere keeps what was typed.
                    onActiveFocusChanged: {
                        if (!field.activeFocus && root.sheet.editingPhaseId === root.phaseId)
                            root.sheet.saveEdit(root.phaseId);
                    }
                }
            }

            ThemedText {
                visible: !root.isEditing
                Layout.rightMargin: Theme.gap1
                text: qsTrId("tasks_count_format", root.taskCount)
                color: Theme.textMuted
                font.pixelSize: Theme.caption
                Accessible.ignored: true
            }

            IconButton {
                visible: !root.isEditing
                focusPolicy: Qt.NoFocus
                symbol: "pencil"
                text: qsTrId("phase_rename_button").arg(root.name)
                onClicked: root.sheet.beginEdit(root.phaseId)
            }

            IconButton {
                objectName: "phaseDelete"
                focusPolicy: Qt.NoFocus
                visible: !root.isEditing
                symbol: "trash"
                text: qsTrId("phase_delete_button").arg(root.name)
                onClicked: root.deletionAsked(root.index)
            }
        }

        FocusRing {
            shown: root.isCurrent && !root.isEditing
            distance: -1
            innerRadius: Theme.radius
        }
    }
}
