pragma ComponentBehavior: Bound

import QtQuick
import NorvinFocus.Ui

/// A symbol and a few words on a card.
Row {
    id: root

    required property string symbol
    required property string text
    property color color: Theme.textMuted

    visible: root.text.length > 0
    spacing: Theme.gap1

    Symbol {
        anchors.verticalCenter: parent.verticalCenter
        name: root.visible ? root.symbol : ""
        color: root.color
        size: 14
    }

    ThemedText {
        anchors.verticalCenter: parent.verticalCenter
        text: root.text
        color: root.color
        font.pixelSize: Theme.caption
        Accessible.ignored: true
    }
}
