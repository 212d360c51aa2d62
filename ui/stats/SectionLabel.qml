pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import NorvinFocus.Ui

/// The heading of a section of the statistics. What is put into it stands at its right.
RowLayout {
    id: root

    required property string icon
    required property string title
    property string subtitle: ""

    spacing: Theme.gap3

    Symbol {
        Layout.alignment: root.subtitle.length > 0 ? Qt.AlignTop : Qt.AlignVCenter
        name: root.icon
        color: Theme.accentText
        size: 22
    }

    ColumnLayout {
        spacing: 2

        ThemedText {
            Layout.fillWidth: true
            text: root.title
            font.pixelSize: Theme.bodyLarge
            font.weight: Font.DemiBold
            Accessible.role: Accessible.Heading
        }

        ThemedText {
            Layout.fillWidth: true
            visible: root.subtitle.length > 0
            text: root.subtitle
            color: Theme.textMuted
            font.pixelSize: Theme.caption
        }
    }
}
