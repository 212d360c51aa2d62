pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import NorvinFocus.Ui

/// A focus score beside a session; a dash where there is none.
RowLayout {
    id: root

    required property string scoreText

    Layout.fillWidth: false
    Layout.preferredWidth: 56
    spacing: Theme.gap1 + 2

    Item {
        Layout.fillWidth: true
    }

    Symbol {
        visible: root.scoreText.length > 0
        name: "star.fill"
        color: Theme.amber
        size: 14
    }

    ThemedText {
        text: root.scoreText.length > 0 ? root.scoreText : "–"
        color: root.scoreText.length > 0 ? Theme.text : Theme.textFaint
        Accessible.ignored: true
    }
}
