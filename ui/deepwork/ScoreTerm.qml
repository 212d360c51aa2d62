pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import NorvinFocus.Ui

/// One line of the score's explanation.
RowLayout {
    id: root

    required property string label
    required property string value
    property bool isTotal: false

    spacing: Theme.gap3

    ThemedText {
        Layout.fillWidth: true
        text: root.label
        color: root.isTotal ? Theme.text : Theme.textMuted
        font.weight: root.isTotal ? Font.DemiBold : Font.Normal
        wrapMode: Text.WordWrap
    }

    Digits {
        text: root.value
        pixelSize: Theme.body
        weight: root.isTotal ? Font.DemiBold : Font.Normal
    }
}
