pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import NorvinFocus.Ui

/// A step of the welcome: what it is about, and below that what is put into it.
KeyboardScope {
    id: root

    required property WelcomeScreen screen
    required property string symbol
    required property string title
    required property string message
    default property alias content: column.data

    ColumnLayout {
        id: column

        anchors.fill: parent
        spacing: Theme.gap4

        Symbol {
            name: root.symbol
            color: Theme.accentText
            size: 40
        }

        ThemedText {
            Layout.fillWidth: true
            text: root.title
            font.pixelSize: Theme.headline
            font.weight: Font.DemiBold
            wrapMode: Text.WordWrap
            Accessible.role: Accessible.Heading
        }

        ThemedText {
            Layout.fillWidth: true
            Layout.bottomMargin: Theme.gap2
            text: root.message
            color: Theme.textMuted
            wrapMode: Text.WordWrap
            lineHeight: 1.3
        }
    }
}
