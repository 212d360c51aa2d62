pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import NorvinFocus.Ui

/// A small fact about a task: a symbol and a few words.
RowLayout {
    id: root

    required property string symbol
    required property string text
    property color symbolColor: Theme.textFaint
    property color color: Theme.textMuted
    /// Longer texts are cut.
    property int maximumTextWidth: 240

    visible: root.text.length > 0
    spacing: Theme.gap1

    Symbol {
        name: root.symbol
        color: root.symbolColor
        size: 14
    }

    ThemedText {
        Layout.maximumWidth: root.maximumTextWidth
        text: root.text
        color: root.color
        font.pixelSize: Theme.caption
        elide: Text.ElideRight
        Accessible.ignored: true
    }
}
