pragma ComponentBehavior: Bound

import QtQuick
import NorvinFocus.Ui

/// One line of the score's explanation.
Item {
    id: root

    required property string label
    required property string value
    property bool isTotal: false

    implicitHeight: name.implicitHeight + 2

    ThemedText {
        id: name

        anchors.left: parent.left
        anchors.right: points.left
        anchors.rightMargin: Theme.gap3
        text: root.label
        color: root.isTotal ? Theme.text : Theme.textMuted
        font.weight: root.isTotal ? Font.DemiBold : Font.Normal
        wrapMode: Text.WordWrap
    }

    Digits {
        id: points

        anchors.right: parent.right
        text: root.value
        pixelSize: Theme.body
        weight: root.isTotal ? Font.DemiBold : Font.Normal
    }
}
