pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import NorvinFocus.Ui

/// What the sheet is about, the way to the parent task, and the ways out.
RowLayout {
    id: root

    required property TaskSheet sheet

    signal deleteAsked
    signal exited

    spacing: Theme.gap1

    ThemedText {
        text: root.sheet.isNew ? qsTrId("task_new_title") : qsTrId("task_detail_title")
        color: Theme.textMuted
        font.weight: Font.DemiBold
        Accessible.role: Accessible.Heading
    }

    PushButton {
        Layout.maximumWidth: 420
        Layout.leftMargin: Theme.gap2
        objectName: "taskParentButton"
        kind: PushButton.Kind.Quiet
        implicitHeight: Theme.controlHeightSmall
        visible: root.sheet.parentTitle.length > 0
        symbol: "chevron.up"
        text: root.sheet.parentTitle
        Accessible.name: qsTrId("task_show_parent").arg(root.sheet.parentTitle)
        onClicked: root.sheet.showParent()
    }

    Item {
        Layout.fillWidth: true
    }

    IconButton {
        objectName: "taskDeleteButton"
        visible: !root.sheet.isNew
        symbol: "trash"
        text: qsTrId("task_delete_button")
        onClicked: root.deleteAsked()
    }

    IconButton {
        objectName: "taskCloseButton"
        symbol: "xmark"
        text: qsTrId("sheet_close_button")
        onClicked: root.exited()
    }
}
