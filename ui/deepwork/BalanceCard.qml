pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import NorvinFocus.Ui

/// The measured time, legitimate against distracted.
Card {
    id: root

    required property LiveSession session
    readonly property int total: root.session.legitimateSeconds + root.session.distractedSeconds

    implicitHeight: column.implicitHeight + 2 * Theme.gap4

    ColumnLayout {
        id: column

        anchors.fill: parent
        anchors.margins: Theme.gap4
        anchors.leftMargin: Theme.gap5
        anchors.rightMargin: Theme.gap5
        spacing: Theme.gap2

        ThemedText {
            text: qsTrId("balance_label")
            color: Theme.textMuted
        }

        Rectangle {
            id: bar

            Layout.fillWidth: true
            implicitHeight: 8
            radius: 4
            color: root.session.distractedSeconds > 0 ? Theme.distracted : Theme.track
            Accessible.role: Accessible.Graphic
            Accessible.name: qsTrId("balance_label")

            Rectangle {
                width: root.total > 0 ? Math.round(bar.width * root.session.legitimateSeconds / root.total) : 0
                height: parent.height
                radius: 4
                color: Theme.legitimate
            }
        }

        RowLayout {
            spacing: Theme.gap3

            BalanceFigure {
                Layout.fillWidth: true
                color: Theme.legitimate
                label: qsTrId("activity_legitimate")
                value: Localization.formats.duration(root.session.legitimateSeconds)
            }

            BalanceFigure {
                Layout.fillWidth: true
                color: Theme.distracted
                label: qsTrId("activity_distracted")
                value: Localization.formats.duration(root.session.distractedSeconds)
            }
        }
    }
}
