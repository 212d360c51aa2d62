pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import NorvinFocus.Ui

/// How much a task matters, as a symbol and a word; nothing for a number that is no priority.
RowLayout {
    id: root

    required property int priorityValue
    required property string label
    readonly property color ink: root.priorityValue === 2 ? Theme.amber : root.priorityValue === 1 ? Theme.textMuted : Theme.textFaint

    visible: root.label.length > 0
    spacing: Theme.gap1

    Symbol {
        name: root.priorityValue === 2 ? "chevron.up" : root.priorityValue === 1 ? "equal" : "chevron.down"
        color: root.ink
        size: 14
    }

    ThemedText {
        text: root.label
        color: root.ink
        font.pixelSize: Theme.caption
        Accessible.ignored: true
    }
}
