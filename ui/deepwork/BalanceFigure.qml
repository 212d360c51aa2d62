pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import NorvinFocus.Ui

/// A length of time beneath what it is the length of.
ColumnLayout {
    id: root

    required property color color
    required property string label
    required property string value

    spacing: 0

    ThemedText {
        Layout.fillWidth: true
        text: root.label
        color: root.color
        font.pixelSize: Theme.caption
    }

    Digits {
        text: root.value
        pixelSize: Theme.bodyLarge
    }
}
