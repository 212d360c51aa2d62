pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import NorvinFocus.Ui

/// What stands in a section that has nothing to show.
ColumnLayout {
    id: root

    required property string icon
    required property string message
    /// Above and below the message; none while empty.
    property string title: ""
    property string subtitle: ""

    Layout.fillWidth: true
    Layout.topMargin: Theme.gap3
    Layout.bottomMargin: Theme.gap4
    spacing: Theme.gap2

    Symbol {
        Layout.alignment: Qt.AlignHCenter
        name: root.icon
        color: Theme.outline
        size: 40
    }

    ThemedText {
        Layout.fillWidth: true
        visible: root.title.length > 0
        text: root.title
        font.weight: Font.DemiBold
        horizontalAlignment: Text.AlignHCenter
        wrapMode: Text.WordWrap
    }

    ThemedText {
        Layout.fillWidth: true
        text: root.message
        color: Theme.textMuted
        horizontalAlignment: Text.AlignHCenter
        wrapMode: Text.WordWrap
    }

    ThemedText {
        Layout.fillWidth: true
        visible: root.subtitle.length > 0
        text: root.subtitle
        color: Theme.textFaint
        font.pixelSize: Theme.caption
        horizontalAlignment: Text.AlignHCenter
        wrapMode: Text.WordWrap
    }
}
