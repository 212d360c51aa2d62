pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import NorvinFocus.Ui

/// How long one phase is.
Rectangle {
    id: root

    required property string phase
    required property string name
    required property int minutes

    Layout.fillWidth: true
    implicitHeight: column.implicitHeight + 2 * Theme.gap3
    radius: Theme.radius
    color: Theme.surfaceRaised
    Accessible.role: Accessible.StaticText
    Accessible.name: root.name + ", " + length.text

    ColumnLayout {
        id: column

        anchors.left: parent.left
        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        anchors.margins: Theme.gap4
        spacing: Theme.gap1

        RowLayout {
            spacing: Theme.gap2

            Rectangle {
                implicitWidth: 8
                implicitHeight: 8
                radius: 4
                color: Theme.phaseColor(root.phase)
            }

            ThemedText {
                Layout.fillWidth: true
                text: root.name
                color: Theme.textMuted
                wrapMode: Text.WordWrap
                Accessible.ignored: true
            }
        }

        ThemedText {
            id: length

            text: Localization.formats.minutes(root.minutes)
            font.pixelSize: Theme.title
            font.weight: Font.DemiBold
            Accessible.ignored: true
        }
    }
}
