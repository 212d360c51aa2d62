pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import NorvinFocus.Ui

/// Settings that belong together, under a title.
Card {
    id: root

    required property string title
    /// A sentence about all of them; may be empty.
    property string explanation: ""
    default property alias content: column.data

    Layout.fillWidth: true
    implicitHeight: column.implicitHeight + 2 * Theme.gap5
    Accessible.role: Accessible.Grouping
    Accessible.name: root.title

    ColumnLayout {
        id: column

        anchors.left: parent.left
        anchors.right: parent.right
        anchors.top: parent.top
        anchors.margins: Theme.gap5
        spacing: Theme.gap4

        ColumnLayout {
            spacing: Theme.gap1

            ThemedText {
                Layout.fillWidth: true
                text: root.title
                font.pixelSize: Theme.bodyLarge
                font.weight: Font.DemiBold
                wrapMode: Text.WordWrap
                Accessible.role: Accessible.Heading
            }

            ThemedText {
                Layout.fillWidth: true
                visible: root.explanation.length > 0
                text: root.explanation
                color: Theme.textMuted
                wrapMode: Text.WordWrap
                lineHeight: 1.2
            }
        }
    }
}
