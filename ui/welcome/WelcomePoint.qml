pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import NorvinFocus.Ui

/// A fact with its symbol.
RowLayout {
    id: root

    required property string symbol
    required property string text
    property color symbolColor: Theme.textMuted

    spacing: Theme.gap4

    Symbol {
        Layout.alignment: Qt.AlignTop
        name: root.symbol
        color: root.symbolColor
        size: 22
    }

    ThemedText {
        Layout.fillWidth: true
        text: root.text
        wrapMode: Text.Wrap
        lineHeight: 1.25
    }
}
