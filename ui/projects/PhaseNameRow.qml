pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import NorvinFocus.Ui

/// A phase in the sheet of a project. Alt with an arrow moves it.
Item {
    id: root

    required property int index
    required property string name
    required property int taskCount
    required property int count
    required property Item content

    signal renamed(int row, string name)
    signal removed(int row)
    /// By that many rows, negative for up.
    signal moved(int row, int rows)
    /// Enter was pressed.
    signal accepted

    function edit(): void {
        field.forceActiveFocus(Qt.TabFocusReason);
    }

    implicitHeight: Theme.controlHeight + Theme.gap1
    z: handle.pressed ? 2 : 0
    transform: Translate {
        y: handle.offset
    }

    onNameChanged: {
        if (field.text !== root.name)
            field.text = root.name;
    }

    RowLayout {
        width: parent.width
        height: Theme.controlHeight
        spacing: Theme.gap1

        RowDragArea {
            id: handle

            Layout.fillHeight: true
            implicitWidth: 24
            hoverEnabled: true
            enabled: root.count > 1
            opacity: enabled ? 1 : 0.35
            rowHeight: root.height
            content: root.content
            onDropped: rows => root.moved(root.index, rows)
        }

        EntryField {
            id: field

            objectName: "phaseName"
            Layout.fillWidth: true
            text: root.name
            maximumLength: 120
            placeholderText: qsTrId("phase_name_label")
            Accessible.name: qsTrId("phase_row_name").arg(root.index + 1)
            onTextEdited: root.renamed(root.index, field.text)
            onAccepted: root.accepted()

            Keys.onPressed: event => {
                const moves = (event.key === Qt.Key_Up || event.key === Qt.Key_Down) && event.modifiers & Qt.AltModifier;
                event.accepted = moves;
                if (moves)
                    root.moved(root.index, event.key === Qt.Key_Up ? -1 : 1);
            }
        }

        ThemedText {
            visible: root.taskCount > 0
            Layout.leftMargin: Theme.gap1
            text: qsTrId("count_tasks", root.taskCount)
            color: Theme.textFaint
            font.pixelSize: Theme.caption
        }

        IconButton {
            objectName: "phaseRemove"
            symbol: "xmark"
            text: qsTrId("phase_remove_button").arg(root.name)
            onClicked: root.removed(root.index)
        }
    }
}
