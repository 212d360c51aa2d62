pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import NorvinFocus.Ui

/// What was done last, and the way back.
Rectangle {
    id: root

    required property BlockListsScreen screen

    /// A button of the bar was pressed, after which the bar may go.
    signal acted

    implicitHeight: row.implicitHeight + 2 * Theme.gap1
    radius: Theme.radius
    color: root.screen.isNoticeProblem ? Theme.amberSurface : Theme.surfaceRaised
    Accessible.role: Accessible.AlertMessage
    Accessible.name: root.screen.notice

    RowLayout {
        id: row

        anchors.fill: parent
        anchors.leftMargin: Theme.gap4
        anchors.rightMargin: Theme.gap1
        spacing: Theme.gap3

        Symbol {
            name: root.screen.isNoticeProblem ? "exclamationmark.triangle" : "checkmark"
            color: root.screen.isNoticeProblem ? Theme.amber : Theme.legitimate
            size: 18
        }

        ThemedText {
            objectName: "notice"
            Layout.fillWidth: true
            text: root.screen.notice
            wrapMode: Text.Wrap
            Accessible.ignored: true
        }

        PushButton {
            objectName: "undoButton"
            kind: PushButton.Kind.Quiet
            visible: root.screen.isNoticeUndoable
            text: qsTrId("undo_button")
            onClicked: {
                root.acted();
                root.screen.undo();
            }
        }

        IconButton {
            implicitWidth: Theme.controlHeight
            implicitHeight: Theme.controlHeight
            symbol: "xmark"
            text: qsTrId("notice_close_button")
            onClicked: {
                root.acted();
                root.screen.clearNotice();
            }
        }
    }
}
