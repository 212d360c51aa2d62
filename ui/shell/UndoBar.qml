pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import QtQuick.Templates as T
import NorvinFocus.Ui

/// Says what was just taken away and offers to bring it back, over everything else in the window.
Item {
    id: root

    required property PlanningEdits model
    readonly property PlanningEdits edits: root.model

    T.Popup {
        id: bar

        objectName: "undoBar"
        parent: T.Overlay.overlay
        x: parent ? Math.round((parent.width - width) / 2) : 0
        y: parent ? parent.height - height - Theme.gap6 : 0
        // Sheets are below it: what was taken away in one of them is brought back from there.
        z: 10
        visible: true
        closePolicy: T.Popup.NoAutoClose
        leftPadding: Theme.gap4
        rightPadding: Theme.gap2
        topPadding: Theme.gap2
        bottomPadding: Theme.gap2
        implicitWidth: row.implicitWidth + leftPadding + rightPadding
        implicitHeight: row.implicitHeight + topPadding + bottomPadding

        RowLayout {
            id: row

            spacing: Theme.gap3
            Accessible.role: Accessible.AlertMessage
            Accessible.name: words.text

            ThemedText {
                id: words

                Layout.maximumWidth: 520
                text: root.edits.undoText
                elide: Text.ElideMiddle
                Accessible.ignored: true
            }

            PushButton {
                objectName: "undoButton"
                implicitHeight: Theme.controlHeightSmall
                kind: PushButton.Kind.Quiet
                symbol: "arrow.uturn.backward"
                text: qsTrId("undo_button")
                onClicked: root.edits.undo()
            }

            IconButton {
                symbol: "xmark"
                text: qsTrId("notice_close_button")
                onClicked: root.edits.forget()
            }
        }

        background: Rectangle {
            radius: Theme.radius
            color: Theme.surfacePressed
            border.width: 1
            border.color: Theme.outline
        }
    }

    Shortcut {
        sequences: ["Ctrl+Z"]
        context: Qt.ApplicationShortcut
        onActivated: root.edits.undo()
    }
}
