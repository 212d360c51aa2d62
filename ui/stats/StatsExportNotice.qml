pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import NorvinFocus.Ui

/// How far the file is that is being written, and then what became of it.
Rectangle {
    id: root

    required property StatsExport model
    readonly property bool isBusy: root.model.isBusy
    readonly property bool isProblem: root.model.isNoticeProblem
    readonly property string text: root.isBusy ? root.model.busyText : root.model.noticeText

    /// It is about to go, and with it the keyboard where it has it.
    signal keyboardLeft

    visible: root.text.length > 0
    implicitHeight: row.implicitHeight + 2 * Theme.gap1
    radius: Theme.radius
    color: root.isProblem ? Theme.amberSurface : Theme.surfaceRaised
    Accessible.role: Accessible.AlertMessage
    Accessible.name: root.text

    RowLayout {
        id: row

        anchors.fill: parent
        anchors.leftMargin: Theme.gap4
        anchors.rightMargin: Theme.gap1
        spacing: Theme.gap3

        Symbol {
            name: root.isProblem ? "exclamationmark.triangle" : root.isBusy ? "square.and.arrow.up" : "checkmark"
            color: root.isProblem ? Theme.amber : root.isBusy ? Theme.textMuted : Theme.legitimate
            size: 18
        }

        ThemedText {
            objectName: "statsExportNotice"
            Layout.fillWidth: true
            text: root.text
            wrapMode: Text.Wrap
            Accessible.ignored: true
        }

        ProgressLine {
            visible: root.isBusy
            progress: root.model.percent / 100
            fill: Theme.accentBright
            Accessible.role: Accessible.ProgressBar
            Accessible.name: root.model.percent + "\u202f%"
        }

        PushButton {
            objectName: "statsExportCancel"
            visible: root.isBusy
            kind: PushButton.Kind.Quiet
            text: qsTrId("cancel_button")
            onClicked: {
                root.keyboardLeft();
                root.model.cancel();
            }
        }

        IconButton {
            objectName: "statsExportClose"
            visible: !root.isBusy
            implicitWidth: Theme.controlHeight
            implicitHeight: Theme.controlHeight
            symbol: "xmark"
            text: qsTrId("notice_close_button")
            onClicked: {
                root.keyboardLeft();
                root.model.dismissNotice();
            }
        }
    }
}
