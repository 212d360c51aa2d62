pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import QtQuick.Templates as T
import NorvinFocus.Ui

/// A task that could be picked.
T.ItemDelegate {
    id: root

    required property string taskId
    required property string title
    required property string projectName

    signal chosen(string taskId)

    implicitHeight: Theme.controlHeight
    text: root.title
    focusPolicy: Qt.NoFocus
    hoverEnabled: true
    Accessible.name: root.projectName.length > 0 ? root.title + ", " + root.projectName : root.title

    onClicked: root.chosen(root.taskId)

    contentItem: Item {
        RowLayout {
            anchors.fill: parent
            anchors.leftMargin: Theme.gap2
            anchors.rightMargin: Theme.gap2
            spacing: Theme.gap2

            ThemedText {
                Layout.fillWidth: true
                text: root.title
                elide: Text.ElideRight
                Accessible.ignored: true
            }

            ThemedText {
                Layout.maximumWidth: 120
                visible: root.projectName.length > 0
                text: root.projectName
                color: Theme.textMuted
                font.pixelSize: Theme.caption
                elide: Text.ElideRight
                Accessible.ignored: true
            }
        }
    }

    background: Rectangle {
        radius: Theme.radiusSmall
        color: root.ListView.isCurrentItem || root.hovered ? Theme.surfacePressed : "transparent"
    }
}
