pragma ComponentBehavior: Bound

import QtQuick
import NorvinFocus.Ui

/// Small texts along a chart, by their middles.
Item {
    id: root

    required property list<real> xs
    required property list<string> texts
    /// Top of each; the same for all while empty.
    property list<real> ys: []
    property color color: Theme.textFaint

    implicitHeight: 16

    Repeater {
        model: root.texts.length

        ThemedText {
            id: label

            required property int index

            x: Math.round((root.xs[label.index] ?? 0) - width / 2)
            y: root.ys[label.index] ?? 0
            text: root.texts[label.index] ?? ""
            color: root.color
            font.pixelSize: Theme.caption
            Accessible.ignored: true
        }
    }
}
