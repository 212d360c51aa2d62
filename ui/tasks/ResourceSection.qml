pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import NorvinFocus.Ui

/// The files attached to the task. More come by the button, or dropped here from a file manager.
ColumnLayout {
    id: root

    required property TaskSheet sheet

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
        color: drop.containsDrag ? Theme.accentSurface : "transparent"
        border.width: 1
        border.color: drop.containsDrag ? Theme.accentText : Theme.outline

        ThemedText {
            anchors.fill: parent
            anchors.margins: Theme.gap3
            text: drop.containsDrag ? qsTrId("resources_drop_now") : qsTrId("resources_drop_here")
            color: drop.containsDrag ? Theme.text : Theme.textMuted
            horizontalAlignment: Text.AlignHCenter
            verticalAlignment: Text.AlignVCenter
            wrapMode: Text.WordWrap
        }

        DropArea {
            id: drop

            objectName: "resourceDrop"
            anchors.fill: parent
            keys: ["text/uri-list"]
            onDropped: event => {
                root.sheet.attach(event.urls);
                // The file stays where it is: only where it lies is noted.
                event.accept(Qt.CopyAction);
            }
        }
    }
}
