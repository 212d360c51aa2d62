pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import NorvinFocus.Ui

/// The files attached to the task. More come by the button, or dropped on the sheet from a file manager.
ColumnLayout {
    id: root

    required property TaskSheet sheet
    /// Whether files are being dragged over the sheet.
    required property bool isDropTarget

    function chooseFiles(): void {
        if (!files.item)
            files.setSource("ResourceChooser.qml", {
                sheet: root.sheet
            });
        (files.item as ResourceChooser).choose();
    }

    spacing: Theme.gap2

    Loader {
        id: files
    }

    RowLayout {
        ThemedText {
            Layout.fillWidth: true
            text: qsTrId("resources_title")
            font.weight: Font.DemiBold
            Accessible.role: Accessible.Heading
        }

        PushButton {
            objectName: "attachButton"
            implicitHeight: Theme.controlHeightSmall
            symbol: "paperclip"
            text: qsTrId("resources_add_button")
            onClicked: root.chooseFiles()
        }
    }

    Banner {
        objectName: "attachNotice"
        Layout.fillWidth: true
        visible: root.sheet.noticeKey.length > 0
        text: visible ? qsTrId(root.sheet.noticeKey) : ""
        isDismissible: true
        onDismissed: root.sheet.dismissNotice()
    }

    Repeater {
        model: root.sheet.resources

        ResourceRow {
            Layout.fillWidth: true
            sheet: root.sheet
        }
    }

    Rectangle {
        Layout.fillWidth: true
        implicitHeight: 56
        radius: Theme.radius
        color: root.isDropTarget ? Theme.accentSurface : "transparent"
        border.width: 1
        border.color: root.isDropTarget ? Theme.accentText : Theme.outline

        ThemedText {
            anchors.fill: parent
            anchors.margins: Theme.gap3
            text: root.isDropTarget ? qsTrId("resources_drop_now") : qsTrId("resources_drop_here")
            color: root.isDropTarget ? Theme.text : Theme.textMuted
            horizontalAlignment: Text.AlignHCenter
            verticalAlignment: Text.AlignVCenter
            wrapMode: Text.WordWrap
        }
    }
}
