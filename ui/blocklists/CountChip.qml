pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import NorvinFocus.Ui

/// A count with a symbol.
RowLayout {
    id: root

    required property string symbol
    required property color color
    required property string text
    /// Whether it is what it stands in that says it to a screen reader.
    property bool isSilent: false

    spacing: Theme.gap1 + 2

    Symbol {
        name: root.symbol
        color: root.color
        size: 18
    }

    ThemedText {
        text: root.text
        color: Theme.textMuted
        Accessible.ignored: root.isSilent
    }
}
