pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import NorvinFocus.Ui

/// One figure of the summary.
Card {
    id: root

    required property string label
    required property string value
    property color valueColor: Theme.text

    Layout.fillWidth: true
    Layout.fillHeight: true
    Layout.preferredWidth: 1
    implicitHeight: column.implicitHeight + 2 * Theme.gap4

    ColumnLayout {
        id: column

        anchors.fill: parent
        anchors.margins: Theme.gap4
        spacing: Theme.gap1

        Digits {
            text: root.value
            // Long lengths of time must fit as well.
            pixelSize: Math.round(Math.min(Theme.headline - 2, 1.5 * (root.width - 2 * Theme.gap4) / Math.max(1, root.value.length)))
            color: root.valueColor
        }

        ThemedText {
            Layout.fillWidth: true
            text: root.label
            color: Theme.textMuted
            wrapMode: Text.WordWrap
        }

        Item {
            Layout.fillHeight: true
        }
    }
}
