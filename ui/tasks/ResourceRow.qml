pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import QtQuick.Templates as T
import NorvinFocus.Ui

/// One attached file. Enter opens it, Delete takes it off the task.
T.AbstractButton {
    id: root

    required property int index
    required property string name
    required property url fileUrl
    required property bool isFound
    required property bool isMissing
    required property bool isImage
    required property TaskSheet sheet
    readonly property bool hasPicture: root.isImage && root.isFound

    function open(): void {
        if (root.isFound && !Qt.openUrlExternally(root.fileUrl))
            root.sheet.reportUnopened();
    }

    implicitHeight: root.hasPicture ? 64 : 44
    text: root.name
    hoverEnabled: true
    focusPolicy: Qt.StrongFocus
    Accessible.name: root.isMissing ? qsTrId("resource_missing_name").arg(root.name) : qsTrId("resource_open").arg(root.name)

    onClicked: root.open()
    Keys.onReturnPressed: root.open()
    Keys.onEnterPressed: root.open()
    Keys.onDeletePressed: root.sheet.removeResource(root.index)

    contentItem: Item {
        RowLayout {
            anchors.fill: parent
            anchors.leftMargin: Theme.gap3
            anchors.rightMargin: Theme.gap1
            spacing: Theme.gap3

            Image {
                Layout.preferredWidth: 48
                Layout.preferredHeight: 48
                visible: root.hasPicture
                source: root.hasPicture ? root.fileUrl : ""
                asynchronous: true
                cache: false
                fillMode: Image.PreserveAspectCrop
                // No more of a large picture is kept than is shown.
                sourceSize.width: 96
                sourceSize.height: 96
            }

            Symbol {
                visible: !root.hasPicture
                name: root.isMissing ? "exclamationmark.triangle" : "paperclip"
                color: root.isMissing ? Theme.amber : Theme.textMuted
                size: 18
            }

            ColumnLayout {
                Layout.fillWidth: true
                spacing: 0

                ThemedText {
                    Layout.fillWidth: true
                    text: root.name
                    color: root.isMissing ? Theme.textMuted : Theme.text
                    elide: Text.ElideMiddle
                    Accessible.ignored: true
                }

                ThemedText {
                    Layout.fillWidth: true
                    visible: root.isMissing
                    text: qsTrId("resource_missing")
                    color: Theme.amber
                    font.pixelSize: Theme.caption
                    elide: Text.ElideRight
                    Accessible.ignored: true
                }
            }

            IconButton {
                symbol: "xmark"
                text: qsTrId("resource_remove").arg(root.name)
                onClicked: root.sheet.removeResource(root.index)
            }
        }
    }

    background: Rectangle {
        radius: Theme.radius
        color: root.down ? Theme.surfacePressed : root.hovered ? Theme.surfaceHover : Theme.surfaceRaised

        FocusRing {
            shown: root.visualFocus
            innerRadius: Theme.radius
            distance: 1
        }
    }
}
